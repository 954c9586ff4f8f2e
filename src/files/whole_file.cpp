#include "zendara/files/whole_file.hpp"

#include "zendara/support/failure.hpp"
#include "zendara/support/file.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <system_error>
#include <utility>

namespace zendara
{

namespace
{

namespace fs = std::filesystem;

std::string last_error()
{
    return std::strerror(errno);
}

bool write_all(File file, std::vector<char> const& bytes)
{
    bool const is_written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    return std::fclose(file.release()) == 0 && is_written;
}

/// A file beside the target that nobody else writes.
File open_beside(fs::path const& target, fs::path& path)
{
    constexpr int most_writers = 1000;
    for (int i = 0; i < most_writers; ++i) {
        path = target;
        path += ".part" + std::to_string(i);
        File file(std::fopen(path.string().c_str(), "wbx"));
        if (file || errno != EEXIST)
            return file;
    }
    return nullptr;
}

void write_straight(fs::path const& path, std::vector<char> const& bytes)
{
    File file(std::fopen(path.string().c_str(), "wb"));
    if (!file || !write_all(std::move(file), bytes))
        fail_with_file(path, last_error());
}

void write_and_rename(fs::path const& target, fs::path const& shown_path, std::vector<char> const& bytes)
{
    fs::path part;
    File file = open_beside(target, part);
    if (!file)
        fail_with_file(shown_path, last_error());
    std::error_code error;
    if (!write_all(std::move(file), bytes)) {
        std::string const reason = last_error();
        fs::remove(part, error);
        fail_with_file(shown_path, reason);
    }
    fs::rename(part, target, error);
    if (error) {
        std::error_code ignored;
        fs::remove(part, ignored);
        fail_with_file(shown_path, error.message());
    }
}

} // namespace

void write_whole_file(fs::path const& path, std::vector<char> const& bytes)
{
    std::error_code error;
    fs::file_status const status = fs::status(path, error);
    if (fs::is_other(status))
        write_straight(path, bytes);
    else if (fs::is_regular_file(status))
        write_and_rename(fs::canonical(path), path, bytes);
    else
        write_and_rename(path, path, bytes);
}

void fail_with_file(fs::path const& path, std::string const& reason)
{
    throw Failure(FailureKind::FileError, path.string() + ": " + reason);
}

} // namespace zendara
