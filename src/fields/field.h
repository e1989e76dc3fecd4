#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "drawing/colour.h"
#include "platform/hook.h"

/// Fields: the controls of the windows without a toolkit. A field holds what its control holds and raises the control's
/// events at once, inside the write. It is declared as a member of its window with its design-time state beside it, and
/// registers there under its name.
namespace zolv {

class Window;

enum class FieldKind : std::uint8_t {
    Label,
    Panel,
    MenuEntry,
    Button,
    TextBox,
    Slider,
    PickList,
    TabStrip,
    CheckBox,
    OptionButton,
    Picture,
    Canvas,
    Window
};

/// What every field has.
struct Look {
    std::string caption = {};
    std::string toolTip = {};
    bool visible = true;
    bool enabled = true;
    std::optional<Rgb> colour = {};  // of the text; none is the system's own
};

class Field {
public:
    Field(const Field&) = delete;
    Field& operator=(const Field&) = delete;
    virtual ~Field() = default;

    FieldKind Kind() const { return kind_; }
    const std::string& Name() const { return name_; }
    Window& Owner() const { return *owner_; }

    const std::string& Caption() const { return look_.caption; }
    const std::string& ToolTip() const { return look_.toolTip; }
    /// The control's own flag; a field on a covered page or in a hidden window keeps its own.
    bool Visible() const { return look_.visible; }
    bool Enabled() const { return look_.enabled; }
    const std::optional<Rgb>& Colour() const { return look_.colour; }

    void SetCaption(std::string_view caption);
    void SetToolTip(std::string_view toolTip);
    void SetVisible(bool visible);
    void SetEnabled(bool enabled);
    void SetColour(std::optional<Rgb> colour);

    /// Locked fields show what they hold and take nothing from the user.
    virtual bool Locked() const { return false; }

    /// Back to the design-time state. Raises nothing.
    virtual void Reset();

protected:
    Field(Window& owner, std::string name, FieldKind kind, Look design);

    /// Enters the field in its window's set of changed fields. Every write that changes something ends here.
    void MarkChanged();

private:
    friend class Window;

    Window* owner_;
    std::string name_;
    FieldKind kind_;
    bool changed_ = false;  // in the window's set already
    Look design_;
    Look look_;
};

/// A window: a field of its own, whose caption is the title, and the owner of its fields.
class Window : public Field {
public:
    /// @param visible  whether it is open at start
    Window(std::string name, std::string title, bool visible);

    const std::string& Title() const { return Caption(); }
    void SetTitle(std::string_view title) { SetCaption(title); }

    /// The window's fields in the order of their declaration, without itself.
    const std::vector<Field*>& Fields() const { return fields_; }

    /// The field of that name, the window itself included; nullptr if there is none.
    Field* Find(std::string_view name) const;

    /// The fields that changed since this was last asked, each once. The front end asks after each user event and
    /// repaints just those.
    std::vector<Field*> TakeChanged() { return std::exchange(changedFields_, ForgetChanged()); }

    /// Opens the window, or brings it to the front where it is open already.
    void Show() {
        SetVisible(true);
        toFront_ = true;
        MarkChanged();
    }

    /// Whether the window is to come to the front; asked once, by the front end.
    bool TakeToFront() { return std::exchange(toFront_, false); }

    void Load() { OnLoad(); }
    void Close() { OnClose(); }

    /// All fields and the window itself back to their design-time state. Raises nothing.
    void Reset() override;

    Hook OnLoad;
    Hook OnClose;  // the user's close box

private:
    friend class Field;

    void Register(Field& field);
    void NoteChanged(Field& field) { changedFields_.push_back(&field); }
    std::vector<Field*> ForgetChanged();

    std::vector<Field*> fields_;
    std::unordered_map<std::string_view, Field*> byName_;
    std::vector<Field*> changedFields_;
    bool toFront_ = false;
};

}  // namespace zolv
