#pragma once

#include <QTranslator>
#include <string>

namespace zolv {

/// The words of Qt's own dialogs and menus, from the translations that are installed with Qt.
class QtWords {
public:
    QtWords() = default;
    QtWords(const QtWords&) = delete;
    QtWords& operator=(const QtWords&) = delete;
    ~QtWords();

    /// Takes those of the language in force, words["LocaleCode"]; they are English where Qt has none.
    void Follow();

private:
    std::string code_ = "en";
    QTranslator translator_;
};

}  // namespace zolv
