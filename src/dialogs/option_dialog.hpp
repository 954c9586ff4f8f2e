#pragma once

#include "zendara/dialogs/number_field.hpp"
#include "zendara/dialogs/option_group.hpp"
#include "zendara/dialogs/row_layout.hpp"
#include "zendara/form/check_box.hpp"
#include "zendara/form/form.hpp"
#include "zendara/support/interface.hpp"

#include <string>
#include <vector>

namespace zendara
{

/// What all option dialogs are: a form titled "Define Plot Options" with a frame, OK and Cancel.
///
/// A dialog lives for one showing: make it, hand the settings over with SetValues, show it modally, ask Redraw, and
/// when that is True read the settings. The panel, which it does not own, has to live as long.
class OptionDialog : public Form
{
public:
    Frame frame;
    Button cmdOK;
    Button cmdCancel;

    /// True after an OK that was accepted: the settings are to be stored and the plot to be drawn.
    BooleanWord Redraw() const { return redraw_; }

protected:
    OptionDialog(Platform& platform, char const* name, char const* frame_caption);

    void keep_panel(panel& wafo) { record_ = &wafo; }
    void drop_panel() { record_ = nullptr; }
    void redraw(BooleanWord redraw) { redraw_ = redraw; }
    /// @throws Failure  ObjectNotSet before SetValues and after Cancel
    panel& record() const;

    /// Makes OK ask for a field, behind those added before.
    void check_on_ok(NumberField const& field, FieldCheck const& check) { checks_.push_back({&field, &check}); }

    /// Places rows in the frame, the buttons at its side, and puts the tab order together.
    void place(RowLayout& rows);

    /// Whether the fields may leave the dialog; the message grows by what is wrong. All have to pass.
    virtual bool is_valid(std::string& message) const;
    /// What OK does.
    virtual void confirm();
    /// What Cancel does.
    virtual void cancel();

    /// How many of the checked fields do not pass.
    std::size_t count_wrong_fields(std::string& message) const;
    std::size_t checked_fields() const { return checks_.size(); }

    /// Shows what is wrong.
    void show_input_error(std::string const& message, int style);

private:
    struct Check {
        NumberField const* field;
        FieldCheck const* check;
    };

    panel* record_ = nullptr;
    BooleanWord redraw_;
    std::vector<Check> checks_;
};

/// The box that makes the ground white.
class WhiteBack
{
public:
    explicit WhiteBack(Child& container);

    CheckBox whiteback;

    void open(Color color) { whiteback.Value(color == QBColor(15) ? 1 : 0); }
    Color color() const { return whiteback.is_checked() ? QBColor(15) : button_face; }
};

/// Whether the sites are marked.
class SiteMarks
{
public:
    /// @param rows  the buttons in their order on the screen; 0 hides, 1 shows
    SiteMarks(Child& container, std::span<OptionRow const> rows);

    OptionGroup optMark;

    void open(BooleanWord is_shown) { optMark.choose(is_shown ? 1 : 0); }
    BooleanWord is_shown() { return optMark.buttons(1).Value(); }
};

extern OptionRow const show_before_hide[2];

/// The row that all option dialogs have in their interface tables.
inline Member redraw_row()
{
    return method<&OptionDialog::Redraw>("Redraw", "True after an accepted OK.");
}

} // namespace zendara
