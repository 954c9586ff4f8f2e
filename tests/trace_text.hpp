#pragma once

#include "zendara/render/surface/recorder.hpp"

#include <sstream>
#include <string>
#include <vector>

namespace zendara::test
{

inline void append(std::ostream& out, TraceRecord::Item const& item)
{
    std::visit(
        [&](auto const& held) {
            if constexpr (std::is_same_v<std::remove_cvref_t<decltype(held)>, std::vector<std::int32_t>>) {
                for (std::size_t i = 0; i < held.size(); ++i)
                    out << (i == 0 ? "[" : ",") << held[i];
                out << "]";
            } else if constexpr (std::is_same_v<std::remove_cvref_t<decltype(held)>, std::string>) {
                out << '"' << held << '"';
            } else {
                out << held;
            }
        },
        item);
}

/// A record as a line of text, "FillBox 1 2 3 4 255" for example.
inline std::string text_of(TraceRecord const& record)
{
    std::ostringstream out;
    out.precision(12);
    out << record.name;
    for (auto const& item : record.items) {
        out << ' ';
        append(out, item);
    }
    return out.str();
}

inline std::vector<std::string> text_of(std::vector<TraceRecord> const& records)
{
    std::vector<std::string> lines;
    for (auto const& record : records)
        lines.push_back(text_of(record));
    return lines;
}

/// The records of one kind of call.
inline std::vector<TraceRecord> only(std::vector<TraceRecord> const& records, std::string const& name)
{
    std::vector<TraceRecord> found;
    for (auto const& record : records)
        if (record.name == name)
            found.push_back(record);
    return found;
}

template <class T> T item(TraceRecord const& record, std::size_t index)
{
    return std::get<T>(record.items.at(index));
}

} // namespace zendara::test
