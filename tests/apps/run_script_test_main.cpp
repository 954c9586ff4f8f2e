// Runs a host script and compares what it prints with the expected lines, each parsed as JSON.
// Usage: run_script_test PROGRAM SCRIPT EXPECTED. Empty lines and lines that begin with # do not count.

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using Json = nlohmann::json;

std::vector<Json> lines_of(std::istream& text)
{
    std::vector<Json> lines;
    for (std::string line; std::getline(text, line);)
        if (!line.empty() && line.front() != '#')
            lines.push_back(Json::parse(line));
    return lines;
}

struct Outcome {
    std::string output;
    int status = 0;
};

Outcome run(std::string const& program, std::string const& script)
{
    Outcome outcome;
    std::FILE* const pipe = popen(("'" + program + "' run --trace '" + script + "'").c_str(), "r");
    if (pipe == nullptr)
        throw std::runtime_error("the program cannot be started");
    std::array<char, 4096> block;
    while (auto const count = std::fread(block.data(), 1, block.size(), pipe))
        outcome.output.append(block.data(), count);
    outcome.status = pclose(pipe);
    return outcome;
}

std::string shown(std::vector<Json> const& lines, std::size_t i)
{
    return i < lines.size() ? lines[i].dump() : "no line";
}

/// Prints every line that differs. @return  how many do
std::size_t compare(std::vector<Json> const& expected, std::vector<Json> const& actual)
{
    std::size_t differences = 0;
    for (std::size_t i = 0; i < std::max(expected.size(), actual.size()); ++i) {
        if (i < expected.size() && i < actual.size() && expected[i] == actual[i])
            continue;
        ++differences;
        std::cerr << "line " << i + 1 << "\n  expected " << shown(expected, i) << "\n  printed  " << shown(actual, i)
                  << '\n';
    }
    return differences;
}

} // namespace

int main(int count, char** words)
{
    if (count != 4) {
        std::cerr << "usage: run_script_test PROGRAM SCRIPT EXPECTED\n";
        return 2;
    }
    try {
        std::ifstream expected_file(words[3]);
        if (!expected_file)
            throw std::runtime_error(std::string(words[3]) + ": cannot be read");
        auto const outcome = run(words[1], words[2]);
        std::istringstream printed(outcome.output);
        auto const differences = compare(lines_of(expected_file), lines_of(printed));
        if (outcome.status != 0)
            std::cerr << "the program ended with status " << outcome.status << '\n';
        return differences == 0 && outcome.status == 0 ? 0 : 1;
    } catch (std::exception const& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
