#include "zendara/controls/print_check.hpp"

#include "zendara/controls/print_members.hpp"

namespace zendara
{

namespace
{

constexpr double smallest_printed_control = 750; // twips, in both directions

} // namespace

bool has_print_input(ControlFrame const& frame)
{
    return frame.record.GetNop() != 0 && frame.printer != nullptr;
}

PrintCheck check_plot_print(ControlFrame const& frame)
{
    if (!has_print_input(frame))
        return PrintCheck::NothingToPrint;
    if (frame.window.Width() < smallest_printed_control || frame.window.Height() < smallest_printed_control)
        return PrintCheck::ControlTooSmall;
    return PrintCheck::Ready;
}

Arguments<4> print_box()
{
    return {by_value("left"), by_value("top"), by_value("width"), by_value("height")};
}

Argument draw_frame()
{
    return optional(by_reference("DrawFrame"), BooleanWord(true).word);
}

} // namespace zendara
