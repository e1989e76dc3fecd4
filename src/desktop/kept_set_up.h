#pragma once

#include <QSettings>
#include <QTimer>
#include <optional>
#include <string>

#include "model/set_up.h"

namespace zolv {

class Binding;

/// Keeps the present set-up in a file of the program's own, a second after each change, so that neither a crash nor a
/// closed window loses it: the nineteen lines of a settings file, and what those lack.
class KeptSetUp : public QObject {
public:
    /// @param file  where it is kept
    KeptSetUp(const QString& file, Binding& binding);

    /// In the user's data folder.
    static QString UsersFile();

    /// Behind the load, without a question: lays out what was kept, and adds its car where that is a custom preset. Of
    /// what is broken nothing comes back; a car that is gone is told.
    void BringBack();

    /// Now.
    void Keep();

private:
    void BringBackPreset(const std::string& car);
    void KeepPreset(const std::string& car);
    void Watch();

    QSettings settings_;
    QTimer pause_;
    std::optional<SetUp> kept_;  // as it was last written, or seen to change
};

}  // namespace zolv
