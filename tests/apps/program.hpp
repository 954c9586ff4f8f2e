#pragma once

#include "scratch.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace zendara
{

struct Outcome {
    int exit = -1;
    std::string output, errors;
};

class Program : public Scratch
{
protected:
    /// Starts the program in the scratch folder.
    /// @param words  as a shell reads them
    Outcome run(std::string const& words) const
    {
        // Outside the scratch folder, so that tests can count what the program writes there.
        std::string const out = folder().string() + ".out", err = folder().string() + ".err";
        std::string const command =
            "cd '" + folder().string() + "' && " ZENDARA_PROGRAM " " + words + " >'" + out + "' 2>'" + err + '\'';
        int const status = std::system(command.c_str());
        Outcome outcome{WIFEXITED(status) ? WEXITSTATUS(status) : -1, contents_of(out), contents_of(err)};
        std::filesystem::remove(out);
        std::filesystem::remove(err);
        return outcome;
    }

    /// Expects exit code 2, one line on standard error, and no new file.
    void expect_bad_input(std::string const& words, std::string const& line) const
    {
        auto const files = file_count();
        auto const outcome = run(words);
        EXPECT_EQ(outcome.exit, 2) << words;
        EXPECT_EQ(outcome.errors, "zendara: " + line + '\n');
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(file_count(), files) << "something was written";
    }

    /// Sixteen sites on a panel of 300 x 200 mm with the values 1 to 16.
    void write_sites() const
    {
        std::string text = "x,y,z\n";
        std::vector<double> x, y, z;
        for (int i = 0; i < 16; ++i) {
            x.push_back(-120 + 80 * (i % 4));
            y.push_back(-90 + 60 * (i / 4));
            z.push_back(1 + i);
            text += std::to_string(x.back()) + ',' + std::to_string(y.back()) + ',' + std::to_string(z.back()) + '\n';
        }
        file("film.csv", text);
        x.insert(x.end(), y.begin(), y.end());
        x.insert(x.end(), z.begin(), z.end());
        raw_file("film.dat", x);
    }
};

} // namespace zendara
