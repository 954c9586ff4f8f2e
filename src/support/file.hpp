#pragma once

#include <cstdio>
#include <memory>

namespace zendara
{

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// An open file of the C library; the end of the scope closes it on every way out.
using File = std::unique_ptr<std::FILE, FileCloser>;

} // namespace zendara
