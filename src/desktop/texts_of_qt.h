#pragma once

#include <QString>
#include <string>
#include <string_view>

/// Between the program's UTF-8 and Qt's strings.
namespace zolv {

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) { return text.toStdString(); }

/// A caption as plain words: "&&" is one ampersand, a single "&" marks a key and is not shown.
inline QString PlainCaption(std::string_view caption) {
    std::string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && ++i == caption.size()) break;
        plain += caption[i];
    }
    return ToQt(plain);
}

}  // namespace zolv
