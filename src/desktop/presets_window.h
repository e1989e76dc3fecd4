#pragma once

#include "desktop/secondary_window.h"

class QGridLayout;
class QGroupBox;

namespace zolv {

/// The window that adds and edits cars of the user's own: the two panels side by side, the same figure at the same
/// height.
class PresetsWindow : public SecondaryWindow {
public:
    explicit PresetsWindow(Binding& binding, QWidget* parent = nullptr);

private:
    enum Side { kAdd, kEdit };  // also which of a line's two labels names it

    struct Tyre {
        TextBox PresetPanel::*width;
        TextBox PresetPanel::*profile;
        TextBox PresetPanel::*rim;
    };
    struct Line;
    static const Line kLines[];

    QGroupBox* MakeAddPanel();
    QGroupBox* MakeEditPanel();
    void AddLines(QGridLayout& grid, PresetPanel& panel, Side side);
    QWidget* MakeControl(const Line& line, QWidget* group, PresetPanel& panel, Side side);
    QWidget* MakeNumber(const Line& line, QWidget* group, TextBox& field, Side side);
    QWidget* MakeTyre(const Tyre& tyre, QWidget* group, PresetPanel& panel, const Label& caption);
    void FinishPanel(QGridLayout& grid, Button& first, Button& second);
};

}  // namespace zolv
