#include "zendara/dialogs/row_layout.hpp"

#include "zendara/form/check_box.hpp"
#include "zendara/form/option_button.hpp"

#include <algorithm>
#include <utility>

namespace zendara
{

namespace
{

// In twips.
constexpr double border = 150; // of a frame, around its rows
constexpr double gap_between_rows = 75;
constexpr double gap_behind_label = 90;
constexpr double gap_within_row = 60;
constexpr double mark_and_gaps = 345; // a round or square mark, and the gaps beside a caption
constexpr double button_border = 240;
constexpr double smallest_mark_height = 240;

TwipsSize text_size(Child& child)
{
    auto const extent = child.platform().text_extent(child.Font(), child.caption());
    return {extent.width, extent.height};
}

double width_of(RowLayout::Children const& children)
{
    double width = 0;
    for (Child* const child : children)
        width += natural_size(*child).width + (width > 0 ? gap_within_row : 0);
    return width;
}

double height_of(RowLayout::Children const& children)
{
    double height = 0;
    for (Child* const child : children)
        height = std::max(height, natural_size(*child).height);
    return height;
}

} // namespace

TwipsSize natural_size(Child& child)
{
    auto const text = text_size(child);
    if (dynamic_cast<Label*>(&child) != nullptr)
        return text;
    auto const* const box = dynamic_cast<CheckBox*>(&child);
    if (box != nullptr && box->is_push_button)
        return {text.width + button_border, text.height + button_border / 2};
    if (box != nullptr || dynamic_cast<OptionButton*>(&child) != nullptr)
        return {text.width + mark_and_gaps, std::max(text.height, smallest_mark_height)};
    return {child.Width(), child.Height()};
}

RowLayout::RowLayout(Frame& frame) : frame_(frame) {}

std::size_t RowLayout::add(Children label, Children content)
{
    rows_.push_back({std::move(label), std::move(content), {}});
    return rows_.size() - 1;
}

void RowLayout::add_in_place_of(std::size_t row, Children label, Children content)
{
    rows_.push_back({std::move(label), std::move(content), row});
}

void RowLayout::place()
{
    double const inset = frame_.has_border ? border : 0;
    double const caption_height = frame_.has_border && !frame_.caption().empty() ? text_size(frame_).height : 0;
    double label_width = 0;
    for (Row const& row : rows_)
        label_width = std::max(label_width, width_of(row.label));
    double const content_left = inset + (label_width > 0 ? label_width + gap_behind_label : 0);

    double right = 0;
    double top = frame_.has_border ? std::max(caption_height + gap_between_rows, inset) : 0;
    double bottom = top;
    for (Row& row : rows_) {
        double const left = row.label.empty() ? inset : content_left;
        right = std::max(right, left + width_of(row.content));
        if (row.in_place_of) {
            place_row(row, rows_[*row.in_place_of].top, left);
            continue;
        }
        row.top = top;
        bottom = place_row(row, top, left);
        top = bottom + gap_between_rows;
    }
    double const caption_width = frame_.has_border ? text_size(frame_).width + 2 * border : 0;
    frame_.Move(frame_.Left(), frame_.Top(), std::max(right + inset, caption_width), bottom + inset);
}

// Answers where the row ends.
double RowLayout::place_row(Row const& row, double top, double content_left)
{
    double const height = std::max(height_of(row.label), height_of(row.content));
    auto const place_all = [&](Children const& children, double left) {
        for (Child* const child : children) {
            auto const size = natural_size(*child);
            child->Move(left, top + (height - size.height) / 2, size.width, size.height);
            left += size.width + gap_within_row;
        }
    };
    place_all(row.label, frame_.has_border ? border : 0);
    place_all(row.content, content_left);
    return top + height;
}

} // namespace zendara
