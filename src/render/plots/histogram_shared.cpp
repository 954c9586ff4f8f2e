#include "zendara/render/plots/histogram_shared.hpp"

#include <algorithm>
#include <vector>

namespace zendara
{

namespace
{

std::vector<Surface*>& printers_in_scope()
{
    static std::vector<Surface*> printers;
    return printers;
}

} // namespace

HistogramLimits& histogram_limits()
{
    static HistogramLimits limits;
    return limits;
}

Surface* default_printer()
{
    auto const& printers = printers_in_scope();
    return printers.empty() ? nullptr : printers.back();
}

DefaultPrinterScope::DefaultPrinterScope(Surface* printer) : printer_(printer)
{
    if (printer_ != nullptr)
        printers_in_scope().push_back(printer_);
}

DefaultPrinterScope::~DefaultPrinterScope()
{
    if (printer_ == nullptr)
        return;
    auto& printers = printers_in_scope();
    auto const latest = std::find(printers.rbegin(), printers.rend(), printer_);
    printers.erase(std::next(latest).base());
}

} // namespace zendara
