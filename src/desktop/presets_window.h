#pragma once

#include <map>

#include "desktop/secondary_window.h"

class QGridLayout;
class QGroupBox;
class QStackedWidget;

namespace zolv {

class FadingNote;
class PresetList;

/// The window that adds and edits cars of the user's own: the presets on the left, and beside them a form with the
/// figures of the one picked, or of a new one. What is to be mended is marked there; what has been done is said in a
/// line that fades.
class PresetsWindow : public SecondaryWindow {
public:
    explicit PresetsWindow(Binding& binding, QWidget* parent = nullptr);
    ~PresetsWindow() override;

private:
    enum Side { kAdd, kEdit };  // also which of a line's two labels names it

    struct Tyre {
        TextBox PresetPanel::*width;
        TextBox PresetPanel::*profile;
        TextBox PresetPanel::*rim;
    };
    struct Line;
    static const Line kLines[];

    QStackedWidget* MakeForm();
    QGroupBox* MakeAddPanel();
    QGroupBox* MakeEditPanel();
    void AddLines(QGridLayout& grid, PresetPanel& panel, Side side);
    QWidget* MakeControl(const Line& line, QWidget* group, PresetPanel& panel, Side side);
    QWidget* MakeNumber(const Line& line, QWidget* group, TextBox& field, Side side);
    QWidget* MakeTyre(const Tyre& tyre, QWidget* group, PresetPanel& panel, const Label& caption);
    void FinishPanel(QGridLayout& grid, Button& first, Button& second);

    void AddSentence(QGridLayout& grid, int row, Side side, std::initializer_list<const Field*> fields);
    void FollowFaults(Side side);
    bool CanBeMended(const Field& field) const;
    void ShowFaults(Side side);
    QWidget* ControlOf(const Field& field) const;

    /// What a panel shows of its faults. Once it was refused they are followed until none is left.
    struct Faults {
        std::map<const Field*, QLabel*> sentences;
        bool followed = false;
    };

    PresetList* list_ = nullptr;
    FadingNote* note_ = nullptr;
    Faults faults_[2];  // by side
};

}  // namespace zolv
