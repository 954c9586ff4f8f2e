#pragma once

#include <string_view>

namespace zendara
{

/// Calls `per_line` with each line of a text; line feeds part them. An empty text is one empty line.
template <class PerLine> void for_each_line(std::string_view text, PerLine&& per_line)
{
    for (;;) {
        auto const end = text.find('\n');
        per_line(text.substr(0, end));
        if (end == std::string_view::npos)
            return;
        text.remove_prefix(end + 1);
    }
}

} // namespace zendara
