#pragma once

#include "zendara/files/paper_size.hpp"
#include "zendara/render/surface/image.hpp"

#include <cairo.h>
#include <cstdint>
#include <memory>
#include <vector>

namespace zendara
{

enum class PaperFormat { Pdf, Svg };

/// A document in memory, and the canvas of its present page.
class PaperDocument
{
public:
    /// @throws Failure  FileError when the drawing library refuses
    PaperDocument(PaperFormat format, PaperSize const& paper);

    PaperFormat format() const { return format_; }
    /// Its unit is a twip, measured from the page's upper left corner.
    cairo_t* canvas() { return canvas_.get(); }

    void set_color(std::uint32_t pixel);
    /// Shows an image over a rectangle of the canvas. Pixels that are see_through leave what lies under them.
    void show_image(Image const& image, double x, double y, double width, double height);
    void end_page();

    /// Ends the document and hands over the bytes of the file.
    /// @throws Failure  FileError when something could not be drawn
    std::vector<char> finish();

private:
    struct Release {
        void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
        void operator()(cairo_t* canvas) const { cairo_destroy(canvas); }
    };
    using SurfaceHandle = std::unique_ptr<cairo_surface_t, Release>;

    void fix_description();

    PaperFormat format_;
    std::vector<char> bytes_;
    SurfaceHandle surface_;
    std::unique_ptr<cairo_t, Release> canvas_;
};

} // namespace zendara
