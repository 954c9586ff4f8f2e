#include "zendara/controls/sigma_members.hpp"

namespace zendara
{

namespace
{

constexpr int bands = 3;
constexpr double gap_twips = 45;

// The bands stand in every other row of the legend.
int row_of(int band)
{
    return 2 * band - 1;
}

} // namespace

SigmaSigns::SigmaSigns(LegendColumn& column) : lblSigma(column.legende, "lblSigma", 1, bands), column_(column)
{
    for (int band = 1; band <= bands; ++band) {
        lblSigma(band).Font({"Symbol", 8});
        lblSigma(band).caption("s");
        lblSigma(band).AutoSize(true);
    }
}

void SigmaSigns::fill_legend(panel const& record, SigmaBand const& sigma)
{
    record.scale_sigma(column_.scalCol, column_.ScaleValue, sigma.range);
    for (int band = 1; band <= bands; ++band) {
        Label const& text = column_.ScaleValue(row_of(band));
        Label& sign = lblSigma(band);
        sign.Move(text.Left() + text.Width() + gap_twips, text.Top(), sign.Width(), sign.Height());
    }
}

} // namespace zendara
