#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "drawing/canvas.h"
#include "fields/field.h"
#include "platform/hook.h"

/// The kinds of fields. Each has two ways in: what a user does (Enter, Drag, Pick, Click, Choose) and what the program
/// does (the Set... calls); the two differ in which events they raise.
namespace zolv {

/// A field of a kind that has a state of its own, beside what every field has: as it was designed, and as it is.
template <class State>
class FieldWith : public Field {
public:
    void Reset() override {
        Field::Reset();
        state_ = design_;
    }

protected:
    FieldWith(Window& owner, std::string name, FieldKind kind, State design)
        : Field(owner, std::move(name), kind, std::move(design.look)), design_(std::move(design)), state_(design_) {}

    State design_;  // without its look, which the field has
    State state_;
};

/// Which of the two set-ups a figure belongs to: the one on the pages, or the one that is held beside it.
enum class Showing : std::uint8_t { Present, Held };

struct LabelState {
    std::string held = {};  // the caption for the held set-up; empty where there is none
    Look look = {};
};

class Label : public FieldWith<LabelState> {
public:
    Label(Window& owner, std::string name, Look design = {});

    /// Writes the figure of one of the two set-ups: the caption, or what stands for it where a set-up is held.
    void Write(Showing which, std::string_view text);

    const std::string& Held() const { return state_.held; }

    /// By how much the figure differs from the held one, in the unit shown: "+1.4". Empty where there is none, or no
    /// difference that could be seen.
    [[nodiscard]] std::string Change() const;
};

struct PanelState {
    int stack = 0;       // panels of one stack lie on top of each other; 0 lies alone
    bool front = false;  // on top of its stack
    Look look = {};
};

/// A panel, page or frame. Panels of a stack share one place, and one of them is on top.
class Panel : public FieldWith<PanelState> {
public:
    Panel(Window& owner, std::string name, PanelState design = {});

    int Stack() const { return design_.stack; }
    bool InFront() const { return state_.front; }
    void BringToFront();

private:
    void SetFront(bool front);
};

class Button : public Field {
public:
    Button(Window& owner, std::string name, Look design = {});

    void Click() { OnClick(); }

    Hook OnClick;
};

/// An entry of a menu. An entry without a parent is a menu of the menu bar, and has no click of its own.
class MenuEntry : public Field {
public:
    MenuEntry(Window& owner, std::string name, std::string parent = {}, std::string shortcut = {}, Look design = {});

    const std::string& Parent() const { return parent_; }
    const std::string& Shortcut() const { return shortcut_; }  // "Ctrl+U", or several, "Ctrl+Tab; Ctrl+PgDown"
    void Click() { OnClick(); }

    Hook OnClick;

private:
    std::string parent_;
    std::string shortcut_;
};

struct TextBoxState {
    std::string text = {};
    std::size_t maxLength = 0;  // characters that a user may type; 0 is no limit
    bool locked = false;
    bool multiLine = false;
    Look look = {};
    std::size_t caret = 0;  // offset into the text
};

class TextBox : public FieldWith<TextBoxState> {
public:
    TextBox(Window& owner, std::string name, TextBoxState design = {});

    const std::string& Text() const { return state_.text; }
    std::size_t MaxLength() const { return design_.maxLength; }
    bool MultiLine() const { return design_.multiLine; }
    bool Locked() const override { return design_.locked; }

    /// The user replaces the whole text: each character passes the key press, and the text is cut at the maximum
    /// length.
    void Enter(std::string_view text);

    /// The program writes the text, which stands whole. Raises change if the text differs.
    void SetText(std::string text);

    /// Where the caret stands, as an offset into the text. A new text puts it back to the start.
    std::size_t Caret() const { return state_.caret; }
    void SetCaret(std::size_t caret);

    Hook OnChange;
    std::function<char(char)> OnKeyPress;  // the character that is to reach the box in place of the one typed
};

struct SliderState {
    int min = 0;
    int max = 100;
    int value = 0;
    int smallStep = 1;
    int largeStep = 10;
    int tick = 1;
    Look look = {};
};

/// A slider over whole numbers. What it is given is limited to its range.
class Slider : public FieldWith<SliderState> {
public:
    Slider(Window& owner, std::string name, SliderState design);

    int Value() const { return state_.value; }
    int Min() const { return state_.min; }
    int Max() const { return state_.max; }
    int SmallStep() const { return design_.smallStep; }
    int LargeStep() const { return design_.largeStep; }
    int Tick() const { return design_.tick; }

    /// The user drags it: raises scroll and change if the value differs.
    void Drag(int value);

    /// The program moves it: raises change if the value differs.
    void SetValue(int value);

    /// A new range; the value moves into it, which is a change like any other. `max` is not below `min`.
    void SetRange(int min, int max);

    Hook OnScroll;
    Hook OnChange;

private:
    bool Move(int value);
};

struct PickListState {
    std::vector<std::string> rows = {};
    int picked = -1;
    bool locked = false;
    Look look = {};
};

/// A list of rows of which one is picked, or none. It cannot be typed into.
class PickList : public FieldWith<PickListState> {
public:
    PickList(Window& owner, std::string name, PickListState design = {});

    const std::vector<std::string>& Rows() const { return state_.rows; }
    int Picked() const { return state_.picked; }  // -1 is none
    const std::string& Text() const;              // of the picked row; empty for none
    int Find(std::string_view text) const;        // the first row with that text, -1 if there is none
    bool Locked() const override { return state_.locked; }
    void SetLocked(bool locked);

    /// The user picks a row: raises click, also for the row already picked.
    void Pick(int row);

    /// The program picks the row with that text: raises click each time. A text that no row has changes nothing.
    void SetText(std::string_view text) { Pick(Find(text)); }

    void Add(std::string row);
    void SetRow(int row, std::string_view text);
    void Clear();  // no rows, none picked; raises nothing

    Hook OnClick;

protected:
    PickList(Window& owner, std::string name, FieldKind kind, PickListState design);
};

/// A strip of tabs, of which one is in front: a pick list whose rows have tool tips, with the first row picked at
/// start.
class TabStrip : public PickList {
public:
    TabStrip(Window& owner, std::string name, std::size_t tabs);  // their words come with the language

    const std::vector<std::string>& ToolTips() const { return toolTips_; }
    void SetToolTipOf(int tab, std::string_view toolTip);
    void Reset() override;

private:
    std::vector<std::string> toolTips_;
};

struct CheckState {
    bool checked = false;
    int group = 0;  // of option buttons: those of one group clear each other
    Look look = {};
};

class CheckBox : public FieldWith<CheckState> {
public:
    CheckBox(Window& owner, std::string name, CheckState design = {});

    bool Checked() const { return state_.checked; }

    /// By the user or by the program: raises click if the state changes.
    void SetChecked(bool checked);

    Hook OnClick;
};

class OptionButton : public FieldWith<CheckState> {
public:
    OptionButton(Window& owner, std::string name, CheckState design);

    bool Checked() const { return state_.checked; }
    int Group() const { return design_.group; }

    /// By the user or by the program: clears the others of its group and raises click. One that is chosen already
    /// stays so and raises nothing, so that a second press never repeats a hand-over.
    void Choose();

    Hook OnClick;
};

struct PictureState {
    std::string path = {};
    Look look = {};
};

/// A picture from a file.
class Picture : public FieldWith<PictureState> {
public:
    Picture(Window& owner, std::string name, Look design = {});

    const std::string& Path() const { return state_.path; }
    void SetPath(std::string path);
};

struct CanvasState {
    Canvas canvas;
    Look look = {};
};

/// A canvas on a page. Its visible flag is what hides and shows the drawing.
class CanvasField : public FieldWith<CanvasState> {
public:
    CanvasField(Window& owner, std::string name, double width, double height, Look design = {});

    const Canvas& Drawing() const { return state_.canvas; }

    /// The canvas for drawing on; the field counts as changed.
    Canvas& Draw();
};

}  // namespace zolv
