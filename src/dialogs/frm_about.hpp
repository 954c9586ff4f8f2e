#pragma once

#include "zendara/form/form.hpp"

#include <cstdint>

namespace zendara
{

/// The kinds of controls that the about box tells apart.
enum class AboutKind : std::int16_t {
    Map = 1,
    Surface,
    SigmaMap,
    SigmaSurface,
    Contours,
    LineScan,
    Histogram,
    Numbers
};

/// The about box: the library's name, its version, and where to turn to.
class frmAbout final : public Form
{
public:
    explicit frmAbout(Platform& platform);

    Label lblTitle;
    Label lblVersion;
    Label lblContact;
    Button cmdOK;

    /// Names the kind of control, an AboutKind, in the window's title.
    void SetTitle(std::int16_t kind);

    Interface const& host_interface() const override;

private:
    void lay_out();
};

} // namespace zendara
