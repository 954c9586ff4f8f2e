#include "zendara/render/plots/contour_mesh.hpp"

#include "zendara/panel/panel.hpp"
#include "zendara/support/checked.hpp"

#include <algorithm>
#include <span>
#include <utility>

namespace zendara
{

namespace
{

/// Places from one edge of the tested area to the other.
std::vector<double> places(std::int16_t count, double size, double half_size)
{
    double const pitch = divide(size, count - 1);
    std::vector<double> all(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        all[static_cast<std::size_t>(i)] = i * pitch - half_size;
    return all;
}

} // namespace

ContourMesh::ContourMesh(std::vector<double> x, std::vector<double> y, std::vector<double> values)
    : x_(std::move(x)), y_(std::move(y)), values_(std::move(values))
{
    find_spans();
}

ContourMesh ContourMesh::sampled(panel const& record, std::int16_t columns, std::int16_t rows)
{
    auto x = places(columns, record.TestSizeX, record.HalfTestSizeX);
    auto y = places(rows, record.TestSizeY, record.HalfTestSizey);
    std::vector<double> values(x.size() * y.size());
    for (std::size_t row = 0; row < y.size(); ++row)
        record.interpolate_row(x, y[row], std::span(values).subspan(row * x.size(), x.size()));
    return {std::move(x), std::move(y), std::move(values)};
}

void ContourMesh::find_spans()
{
    cell_spans_.reserve((columns() - 1) * (rows() - 1));
    row_spans_.reserve(rows() - 1);
    for (std::size_t row = 0; row + 1 < rows(); ++row) {
        double const* const lower = &values_[row * columns()];
        double const* const upper = lower + columns();
        Span row_span{lower[0], lower[0]};
        for (std::size_t column = 0; column + 1 < columns(); ++column) {
            auto const [lowest, highest] =
                std::minmax({lower[column], lower[column + 1], upper[column], upper[column + 1]});
            cell_spans_.push_back({lowest, highest});
            row_span = {std::min(row_span.lowest, lowest), std::max(row_span.highest, highest)};
        }
        row_spans_.push_back(row_span);
    }
}

std::size_t ContourMesh::find_reached_cells(std::size_t row, double level, std::vector<std::uint32_t>& reached) const
{
    std::size_t const cells = columns() - 1;
    Span const* const spans = &cell_spans_[row * cells];
    std::size_t count = 0;
    // Written always and counted where it holds: a jump would often be mispredicted.
    for (std::size_t column = 0; column < cells; ++column) {
        reached[count] = static_cast<std::uint32_t>(column);
        count += static_cast<std::size_t>(spans[column].lowest <= level) &
                 static_cast<std::size_t>(level <= spans[column].highest);
    }
    return count;
}

} // namespace zendara
