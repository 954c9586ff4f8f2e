#include "csv_table.hpp"

#include "zendara/support/failure.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <system_error>
#include <vector>

namespace zendara::program
{

namespace
{

constexpr std::size_t axes = 3;
constexpr std::array<std::string_view, axes> axis_names = {"x", "y", "z"};

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    auto const first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool is_axis(std::string_view cell, std::string_view name)
{
    return cell.size() == 1 && std::tolower(static_cast<unsigned char>(cell.front())) == name.front();
}

/// The lines of a file, one at a time, counted from 1.
class LineReader
{
public:
    explicit LineReader(std::FILE* file) : file_(file) {}
    ~LineReader() { std::free(line_); }
    LineReader(LineReader const&) = delete;
    LineReader& operator=(LineReader const&) = delete;

    /// @return  false at the end of the file
    bool next()
    {
        auto const length = ::getline(&line_, &capacity_, file_);
        if (length < 0)
            return false;
        line_length_ = static_cast<std::size_t>(length);
        bytes_ += line_length_;
        ++number_;
        return true;
    }

    std::string_view text() const { return {line_, line_length_}; }
    std::size_t number() const { return number_; }
    std::uint64_t bytes() const { return bytes_; }

private:
    std::FILE* file_;
    char* line_ = nullptr;
    std::size_t capacity_ = 0;
    std::size_t line_length_ = 0;
    std::size_t number_ = 0;
    std::uint64_t bytes_ = 0;
};

class CsvReader
{
public:
    CsvReader(std::FILE* file, std::string const& name) : lines_(file), name_(name) {}

    SiteData read(std::uint64_t size, Progress& progress)
    {
        read_header();
        std::size_t count = 0;
        while (next_row()) {
            // Rows that no control takes are counted only, so that the message can tell how many there are.
            if (++count <= most_sites)
                read_row();
            progress.show(lines_.bytes(), size);
        }
        if (count > most_sites)
            throw UserError(name_ + ": " + std::to_string(count) + " sites are more than the " +
                            std::to_string(most_sites) + " that a control takes");
        if (count == 0)
            fail_here(1, "expected a row of numbers behind the header, the file ends", Exit::NothingToPlot);
        SiteData data;
        data.source = SiteData::Source::Csv;
        data.x = {0, std::move(columns_[0])};
        data.y = {0, std::move(columns_[1])};
        data.z = {0, std::move(columns_[2])};
        return data;
    }

private:
    [[noreturn]] void fail_here(std::size_t lines_ahead, std::string const& expected, Exit exit = Exit::BadInput) const
    {
        throw UserError(name_ + ":" + std::to_string(lines_.number() + lines_ahead) + ": " + expected, exit);
    }

    /// Takes the next line that is not blank.
    bool next_row()
    {
        while (lines_.next()) {
            row_ = lines_.text();
            while (!row_.empty() && (row_.back() == '\n' || row_.back() == '\r'))
                row_.remove_suffix(1);
            if (!trimmed(row_).empty())
                return true;
        }
        return false;
    }

    void read_header()
    {
        if (!next_row())
            fail_here(1, "expected a header with the columns x, y, z, the file ends", Exit::NothingToPlot);
        skip_byte_order_mark();
        choose_separator();
        split();
        column_count_ = cells_.size();
        for (std::size_t axis = 0; axis < axes; ++axis)
            column_of_[axis] = find_column(axis_names[axis]);
    }

    void skip_byte_order_mark()
    {
        if (row_.starts_with("\xEF\xBB\xBF"))
            row_.remove_prefix(3);
        else if (row_.starts_with("\xFF\xFE") || row_.starts_with("\xFE\xFF"))
            fail_here(0, "expected text in UTF-8 or ASCII, found UTF-16");
    }

    void choose_separator()
    {
        auto const has = [&](char c) { return row_.find(c) != std::string_view::npos; };
        separator_ = has('\t') ? '\t' : has(';') ? ';' : ',';
    }

    std::size_t find_column(std::string_view axis) const
    {
        auto const is_meant = [&](std::string_view cell) { return is_axis(cell, axis); };
        auto const found = std::find_if(cells_.begin(), cells_.end(), is_meant);
        if (found == cells_.end())
            fail_here(0, "expected a header with the columns x, y, z, found no " + std::string(axis));
        if (std::any_of(found + 1, cells_.end(), is_meant))
            fail_here(0, "expected one column " + std::string(axis) + ", found two");
        return static_cast<std::size_t>(found - cells_.begin());
    }

    void read_row()
    {
        split();
        if (cells_.size() != column_count_)
            fail_here(0, "expected " + std::to_string(column_count_) + " columns as in the header, found " +
                             std::to_string(cells_.size()));
        for (std::size_t axis = 0; axis < axes; ++axis)
            columns_[axis].push_back(number_in(cells_[column_of_[axis]], axis_names[axis]));
    }

    /// Splits the row into cells, without blanks and quotes around them.
    void split()
    {
        cells_.clear();
        std::size_t begin = 0;
        bool is_quoted = false;
        for (std::size_t i = 0; i <= row_.size(); ++i) {
            if (i < row_.size() && row_[i] == '"')
                is_quoted = !is_quoted; // a doubled quote toggles twice
            if (i < row_.size() && (is_quoted || row_[i] != separator_))
                continue;
            cells_.push_back(unquoted(trimmed(row_.substr(begin, i - begin))));
            begin = i + 1;
        }
        if (is_quoted)
            fail_here(0, "expected a closing quote");
    }

    static std::string_view unquoted(std::string_view cell)
    {
        bool const is_quoted = cell.size() >= 2 && cell.front() == '"' && cell.back() == '"';
        return is_quoted ? trimmed(cell.substr(1, cell.size() - 2)) : cell;
    }

    double number_in(std::string_view cell, std::string_view axis)
    {
        digits_.assign(cell);
        if (auto const comma = digits_.find(','); comma != std::string::npos && separator_ != ',')
            digits_[comma] = '.'; // a second mark of either kind fails below
        auto const* begin = digits_.data();
        auto const* const end = begin + digits_.size();
        if (digits_.starts_with('+') && !digits_.starts_with("+-"))
            ++begin;
        double value = 0;
        auto const [stop, error] = std::from_chars(begin, end, value);
        if (begin == end || stop != end || error == std::errc::invalid_argument)
            fail_here(0, "expected a number in column " + std::string(axis) + ", found " + shown(cell));
        if (error == std::errc::result_out_of_range)
            value = std::strtod(digits_.c_str(), nullptr); // 0 for a tiny number, infinity for a large one
        if (!std::isfinite(value))
            fail_here(0, "expected a finite number in column " + std::string(axis) + ", found " + shown(cell));
        return value;
    }

    LineReader lines_;
    std::string const& name_;
    std::string_view row_;
    char separator_ = ',';
    std::vector<std::string_view> cells_;
    std::size_t column_count_ = 0;
    std::array<std::size_t, axes> column_of_ = {};
    std::array<std::vector<double>, axes> columns_;
    std::string digits_;
};

} // namespace

SiteData read_csv(std::FILE* file, std::string const& name, std::uint64_t size, Progress& progress)
{
    return CsvReader(file, name).read(size, progress);
}

} // namespace zendara::program
