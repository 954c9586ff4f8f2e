#include "zendara/dialogs/frm_about.hpp"

#include "zendara/dialogs/row_layout.hpp"
#include "zendara/support/interface.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace zendara
{

namespace
{

constexpr std::array<char const*, 8> kinds = {
    "2D Plot",        "3D Plot",   "2D Sigma Range Plot", "3D Sigma Range Plot",
    "2D Contur Plot", "Line Scan", "Histogram",           "2D Number Plot",
};

// In twips.
constexpr double margin = 300;
constexpr double gap = 150;
constexpr double button_width = 1200;
constexpr double button_height = 375;
constexpr double smallest_width = 4500;

// "0.1.0" and "0.1" both give "0.1".
std::string major_and_minor(std::string const& version)
{
    auto const first = version.find('.');
    auto const second = first == std::string::npos ? first : version.find('.', first + 1);
    return version.substr(0, second);
}

std::string contact_block()
{
    std::string block;
    for (char const* const line : {"Zendara measurement software", "Questions and reports: support@zendara.example"})
        block += (block.empty() ? "" : "\n") + std::string(line);
    return block;
}

} // namespace

frmAbout::frmAbout(Platform& platform)
    : Form(platform, "frmAbout"), lblTitle(*this, "lblTitle"), lblVersion(*this, "lblVersion"),
      lblContact(*this, "lblContact"), cmdOK(*this, "cmdOK")
{
    lblTitle.Font({"Arial", 10});
    lblTitle.caption("Zendara-View.OCX ActiveX Control");
    lblVersion.caption("Version " + major_and_minor(platform.version()));
    lblContact.caption(contact_block());
    cmdOK.caption("OK");
    cmdOK.on("Click", [this](std::span<Value>) { Hide(); });
    default_button = &cmdOK;
    cancel_button = &cmdOK;
    tab_order = {&cmdOK};
    lay_out();
}

void frmAbout::SetTitle(std::int16_t kind)
{
    bool const is_known = kind >= 1 && static_cast<std::size_t>(kind) <= kinds.size();
    std::string const text = is_known ? kinds[static_cast<std::size_t>(kind) - 1] : "";
    caption("Zendara-View.OCX Type: " + text);
}

void frmAbout::lay_out()
{
    double top = margin;
    double width = smallest_width;
    for (Label* const label : {&lblTitle, &lblVersion, &lblContact}) {
        label->Move(margin, top, 0, 0);
        label->AutoSize(true);
        width = std::max(width, label->Width() + 2 * margin);
        top += label->Height() + gap;
    }
    cmdOK.Move((width - button_width) / 2, top + gap, button_width, button_height);
    take_size(width, cmdOK.Top() + button_height + margin);
}

Interface const& frmAbout::host_interface() const
{
    static Interface const table{
        "frmAbout", "The about box.",
        join({place_and_looks(),
              {method<&frmAbout::SetTitle>("SetTitle", "Names the kind of control in the title.", by_value("kind"))}})};
    return table;
}

} // namespace zendara
