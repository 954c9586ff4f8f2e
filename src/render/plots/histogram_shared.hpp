#pragma once

#include "zendara/render/surface/surface.hpp"
#include "zendara/support/boolean_word.hpp"

namespace zendara
{

/// The control limits that the crosswise histograms of the process show, whatever panel they belong to.
struct HistogramLimits {
    BooleanWord HistLimitOn;
    double HistLCL = 0;
    double HistUCL = 0;
};

HistogramLimits& histogram_limits();

/// The printer that the process prints to by default: that of the latest scope; nullptr where there is none.
Surface* default_printer();

/// Makes a printer the process's default one until the end of the scope. Scopes may end in any order.
class DefaultPrinterScope
{
public:
    /// @param printer  may be nullptr: nothing changes then
    explicit DefaultPrinterScope(Surface* printer);
    DefaultPrinterScope(DefaultPrinterScope const&) = delete;
    DefaultPrinterScope& operator=(DefaultPrinterScope const&) = delete;
    ~DefaultPrinterScope();

private:
    Surface* printer_;
};

} // namespace zendara
