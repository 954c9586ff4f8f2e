#include "zendara/dialogs/option_dialog.hpp"

#include <algorithm>

namespace zendara
{

namespace
{

// In twips.
constexpr double button_width = 1200;
constexpr double button_height = 375;
constexpr double gap_between_buttons = 105;
constexpr double first_button_top = form_margin + 90; // level with the line around the frame

} // namespace

OptionRow const show_before_hide[2] = {{1, "Show"}, {0, "Hide"}};

OptionDialog::OptionDialog(Platform& platform, char const* name, char const* frame_caption)
    : Form(platform, name), frame(*this, "Frame1"), cmdOK(*this, "cmdOK"), cmdCancel(*this, "cmdCancel")
{
    caption("Define Plot Options");
    frame.caption(frame_caption);
    cmdOK.caption("OK");
    cmdCancel.caption("Cancel");
    default_button = &cmdOK;
    cancel_button = &cmdCancel;
    cmdOK.on("Click", [this](std::span<Value>) { confirm(); });
    cmdCancel.on("Click", [this](std::span<Value>) { cancel(); });
}

panel& OptionDialog::record() const
{
    if (record_ == nullptr)
        fail(FailureKind::ObjectNotSet, "the dialog has no panel");
    return *record_;
}

void OptionDialog::place(RowLayout& rows)
{
    frame.Move(form_margin, form_margin, 0, 0);
    rows.place();
    double const left = frame.Left() + frame.Width() + form_margin;
    cmdOK.Move(left, first_button_top, button_width, button_height);
    cmdCancel.Move(left, cmdOK.Top() + button_height + gap_between_buttons, button_width, button_height);
    double const bottom = std::max(frame.Top() + frame.Height(), cmdCancel.Top() + button_height);
    take_size(left + button_width + form_margin, bottom + form_margin);
    tab_order = in_reading_order(*this);
}

bool OptionDialog::is_valid(std::string& message) const
{
    return count_wrong_fields(message) == 0;
}

std::size_t OptionDialog::count_wrong_fields(std::string& message) const
{
    std::size_t wrong = 0;
    for (Check const& each : checks_)
        wrong += each.field->check(*each.check, record(), message) ? 0 : 1;
    return wrong;
}

void OptionDialog::confirm()
{
    std::string message;
    if (!is_valid(message)) {
        show_input_error(message, message_system_modal);
        return;
    }
    redraw_ = true;
    Hide();
}

void OptionDialog::cancel()
{
    drop_panel();
    redraw_ = false;
    Hide();
}

void OptionDialog::show_input_error(std::string const& message, int style)
{
    platform().message_box(message, style, "Input Error");
}

WhiteBack::WhiteBack(Child& container) : whiteback(container, "whiteback")
{
    whiteback.caption("White background");
    whiteback.access_key = 'W';
}

SiteMarks::SiteMarks(Child& container, std::span<OptionRow const> rows)
    : optMark(container, "optMark", "Marked Sites:", 'M', rows)
{
}

} // namespace zendara
