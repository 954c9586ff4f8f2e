#pragma once

#include "zendara/panel/panel.hpp"
#include "zendara/render/surface/surface.hpp"
#include "zendara/support/container.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace zendara
{

struct BlockRow;

/// Writes the data of one panel below a picture, which grows at its lower edge by as much as they need.
///
/// Set both objects, then call DrawPanelData; a second call grows the picture again. Coordinates are twips in 16 bits:
/// members fail with Overflow where a sum leaves them, and with ObjectNotSet while an object is missing.
class viewbitmap : public Object
{
public:
    /// @param container  tells the version that the title shows; has to outlive the object
    explicit viewbitmap(Container const& container) : container_(container) {}

    /// The picture and the panel; the host keeps them alive. nullptr for none.
    void BitmapObj(Surface* picture) { bitmap_ = picture; }
    void WaferObj(panel* record) { wafer_ = record; }

    /// Grows the picture and writes statistics, sizes and a title: side by side from a width of 4900 twips on, else
    /// one above the other. The font ends at 10 points.
    void DrawPanelData();

    /// Puts the drawing state to its defaults. The font stays as it is.
    void Resetbitobj();

    /// Blocks of text below an underlined title. Remarks have no place in DrawPanelData.
    void DrawStatisticsBlock(std::int16_t x, std::int16_t y);
    void DrawSizeBlock(std::int16_t x, std::int16_t y);
    void DrawRemarksBlock(std::int16_t x, std::int16_t y);

    /// Writes a text, cut at its end to fit `width`.
    /// @param text  comes back as it was written
    /// @throws Failure  InvalidProcedureCall when not even the empty text fits
    void DrawBitmapText(std::string& text, std::int16_t x, std::int16_t y, std::int16_t width, std::int16_t colInd);

    Interface const& host_interface() const override;

private:
    Surface& bitmap() const;
    panel& wafer() const;
    std::int16_t grow(std::int16_t height, double by);
    void draw_title(std::int16_t y, std::int16_t width);
    void draw_block(std::string title, std::vector<BlockRow> const& rows, std::int16_t x, std::int16_t y);

    Container const& container_;
    Surface* bitmap_ = nullptr;
    panel* wafer_ = nullptr;
};

} // namespace zendara
