#include "commands.hpp"
#include "script/script.hpp"
#include "script/session.hpp"
#include "zendara/support/file.hpp"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

namespace zendara::program
{

namespace
{

std::string read_all(std::FILE* file, std::string const& name)
{
    std::string text;
    std::array<char, 65536> block;
    while (auto const count = std::fread(block.data(), 1, block.size(), file))
        text.append(block.data(), count);
    if (std::ferror(file) != 0)
        throw UserError(name + ": " + std::strerror(errno));
    return text;
}

std::string read_file(std::string const& name)
{
    File const file(std::fopen(name.c_str(), "rb"));
    if (!file)
        throw UserError(name + ": " + std::strerror(errno));
    return read_all(file.get(), name);
}

} // namespace

Exit run(RunOptions const& options)
{
    bool const is_standard_input = options.script == "-";
    std::string const name = is_standard_input ? "standard input" : options.script;
    Script const script(is_standard_input ? read_all(stdin, name) : read_file(name), name);
    Session(options.trace ? Pictures::Recorded : Pictures::Drawn).run(script);
    return Exit::Done;
}

} // namespace zendara::program
