#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zendara
{

class panel;

/// A regular raster of values, each cell cut in two along the diagonal from its lower right to its upper left node,
/// and the straight segments in which a level crosses these triangles.
///
/// Nodes are counted from 0, columns from the left and rows from the bottom. Nothing of a level is stored.
class ContourMesh
{
public:
    /// Millimetres from the panel's centre, and the value there.
    struct Node {
        double x, y, value;
    };
    struct Segment {
        double x1, y1, x2, y2;
    };

    /// @param x, y    places of the columns and of the rows, at least two each
    /// @param values  one for each node, row by row
    ContourMesh(std::vector<double> x, std::vector<double> y, std::vector<double> values);

    /// A raster over the whole tested area of a panel; its outermost nodes lie on the edge.
    static ContourMesh sampled(panel const& record, std::int16_t columns, std::int16_t rows);

    std::size_t columns() const { return x_.size(); }
    std::size_t rows() const { return y_.size(); }
    Node node(std::size_t column, std::size_t row) const
    {
        return {x_[column], y_[row], values_[row * columns() + column]};
    }

    /// Hands the segments of a level to `draw`: row by row from the bottom, of each row first those of the lower
    /// triangles from the left to the right, then those of the upper ones. A triangle that only touches the level with
    /// a corner has a segment of length zero; an edge that lies flat on the level has none.
    template <class Draw> void for_each_segment(double level, Draw&& draw) const
    {
        std::vector<std::uint32_t> reached(columns() - 1);
        for (std::size_t row = 0; row + 1 < rows(); ++row) {
            if (!row_spans_[row].reaches(level))
                continue;
            std::size_t const count = find_reached_cells(row, level, reached);
            for (std::size_t i = 0; i < count; ++i)
                cross_lower_triangle(reached[i], row, level, draw);
            for (std::size_t i = 0; i < count; ++i)
                cross_upper_triangle(reached[i], row, level, draw);
        }
    }

private:
    /// From the lowest to the highest value of some nodes. No edge between nodes beyond it is crossed.
    struct Span {
        double lowest, highest;

        bool reaches(double level) const { return lowest <= level && level <= highest; }
    };

    void find_spans();
    // The columns of a row's cells whose values reach to the level; few of them, and all that count.
    std::size_t find_reached_cells(std::size_t row, double level, std::vector<std::uint32_t>& reached) const;

    template <class Draw> void cross_lower_triangle(std::size_t column, std::size_t row, double level, Draw& draw) const
    {
        cross(node(column, row), node(column + 1, row), node(column, row + 1), level, draw);
    }

    template <class Draw> void cross_upper_triangle(std::size_t column, std::size_t row, double level, Draw& draw) const
    {
        cross(node(column + 1, row), node(column + 1, row + 1), node(column, row + 1), level, draw);
    }

    // Two or three edges of a triangle are crossed, or none. Of three, the one from the first to the third corner does
    // not count.
    template <class Draw> static void cross(Node const& a, Node const& b, Node const& c, double level, Draw& draw)
    {
        bool const crosses_ab = crosses(a, b, level);
        if (!crosses_ab && !crosses(a, c, level))
            return;
        bool const crosses_bc = crosses(b, c, level);
        Node const& first_end = crosses_ab ? b : c;
        Node const& second_start = crosses_bc ? b : a;
        draw(Segment{crossing(a.x, first_end.x, a.value, first_end.value, level),
                     crossing(a.y, first_end.y, a.value, first_end.value, level),
                     crossing(second_start.x, c.x, second_start.value, c.value, level),
                     crossing(second_start.y, c.y, second_start.value, c.value, level)});
    }

    static bool crosses(Node const& a, Node const& b, double level)
    {
        bool const is_above = a.value > level && b.value > level;
        bool const is_below = a.value < level && b.value < level;
        return a.value != b.value && !is_above && !is_below;
    }

    // One coordinate of the place between two nodes where the value is that of the level.
    static double crossing(double a, double b, double value_a, double value_b, double level)
    {
        return a - (a - b) * (value_a - level) / (value_a - value_b);
    }

    std::vector<double> x_, y_;
    std::vector<double> values_;
    std::vector<Span> cell_spans_; // row by row
    std::vector<Span> row_spans_;
};

} // namespace zendara
