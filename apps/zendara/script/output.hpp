#pragma once

#include <string_view>

namespace zendara::program
{

/// Lines for standard output, gathered so that a long script costs few writes. They come out when the buffer is full,
/// at the end, and also when a signal ends the program, so that a crash shows how far the script came. One at a time.
class Output
{
public:
    Output();
    ~Output();
    Output(Output const&) = delete;
    Output& operator=(Output const&) = delete;

    void line(std::string_view text);
    void flush();
};

} // namespace zendara::program
