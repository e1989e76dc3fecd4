#pragma once

#include <memory>

#include "desktop/binding.h"
#include "desktop/qt_words.h"

namespace zolv {

class MainWindow;
class SecondaryWindow;

/// The windows over a started program.
class Desktop {
public:
    /// Builds and binds the windows. The fields are at their design-time state or beyond.
    Desktop();
    ~Desktop();

    /// Opens the windows that are to be open, with what the fields hold by now.
    void Open();

    Binding& TheBinding() { return binding_; }
    MainWindow& Main() { return *main_; }

private:
    /// On a first run, while the languages stand in front, the system's is picked where there is one for it.
    void PreselectSystemLanguage();

    QtWords qtWords_;
    Binding binding_;
    std::unique_ptr<MainWindow> main_;
    std::vector<std::unique_ptr<SecondaryWindow>> secondary_;
};

}  // namespace zolv
