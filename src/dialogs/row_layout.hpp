#pragma once

#include "zendara/form/children.hpp"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace zendara
{

/// A length and a height in twips.
struct TwipsSize {
    double width = 0;
    double height = 0;
};

/// Stands children in rows, one below the other: a column of labels, and behind it what they label. Texts get the room
/// that the platform's font asks for, so that no label is cut.
class RowLayout
{
public:
    /// Rows inside a frame, which they make as large as they are.
    explicit RowLayout(Frame& frame);

    using Children = std::vector<Child*>;

    /// A row whose first children are its label.
    /// @return  the number of the row
    std::size_t add(Children label, Children content);
    /// A row without a label, from the left edge on.
    std::size_t add(Children content) { return add({}, std::move(content)); }
    /// Children that show in turn with those of a row.
    void add_in_place_of(std::size_t row, Children label, Children content);

    /// Places all rows and gives the frame its size.
    void place();

private:
    struct Row {
        Children label;
        Children content;
        std::optional<std::size_t> in_place_of;
        double top = 0;
    };

    double place_row(Row const& row, double top, double content_left);

    Frame& frame_;
    std::vector<Row> rows_;
};

/// Between a form's edge, its frame and its buttons.
constexpr double form_margin = 120;

/// The size of a child that shows a text, as the platform's font asks for; of a text box or a picture its own.
TwipsSize natural_size(Child& child);

} // namespace zendara
