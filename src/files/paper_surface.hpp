#pragma once

#include "zendara/files/paper_size.hpp"
#include "zendara/render/surface/surface.hpp"

#include <filesystem>
#include <memory>

namespace zendara
{

class PaperFonts;

/// Twips per device pixel, in both directions.
struct TwipsPerPixel {
    double x = 2.4; // 600 dots per inch
    double y = 2.4;
};

/// A printer whose pages go into a PDF or SVG file.
///
/// Lines, outlined polygons, circles, hatches and texts are vectors and real text in the file. A run of polygons
/// without outlines, such as the cells of a map, becomes one image: neighbouring vector fills show seams wherever a
/// page is smoothed. The same calls give the same bytes.
class PaperSurface : public Surface
{
public:
    /// Begins the first page. Nothing is written before EndDoc.
    /// @param file             SVG where its name ends in ".svg", which has one page only; PDF otherwise
    /// @param twips_per_pixel  of the device: coordinates are rounded to its pixels, pens are measured in them
    /// @throws Failure  InvalidProcedureCall for a sheet or a pixel without extent or larger than a PDF page may be,
    ///                  FileError when a font file is missing
    explicit PaperSurface(std::filesystem::path file, PaperSize const& paper = a4_paper,
                          TwipsPerPixel const& twips_per_pixel = {});
    /// Without EndDoc before, the pages are lost.
    ~PaperSurface() override;

    /// Ends the page and begins another one.
    /// @throws Failure  InvalidProcedureCall in an SVG file, or after EndDoc
    void NewPage();
    /// Ends the last page and writes the file; it appears under its name when it is complete.
    /// @throws Failure  FileError with the name and the reason, with nothing left behind; InvalidProcedureCall when
    ///                  the document has been ended before
    void EndDoc();

    std::filesystem::path const& file() const { return file_; }
    PaperSize const& paper() const { return paper_; }

    void Refresh() override {}
    void Polygon(std::array<DevicePoint, 4> const& corners) override;
    double TextWidth(std::string_view text) const override;
    double TextHeight(std::string_view text) const override;
    double ScaleLeft() const override { return 0; }
    double ScaleTop() const override { return 0; }
    double ScaleWidth() const override { return paper_.width / unit_x(); }
    double ScaleHeight() const override { return paper_.height / unit_y(); }
    double TwipsPerPixelX() const override { return twips_per_pixel_.x; }
    double TwipsPerPixelY() const override { return twips_per_pixel_.y; }
    bool is_printer() const override { return true; }
    /// Paper has no background picture: nothing happens.
    void set_picture(std::shared_ptr<Image const>) override {}

protected:
    /// Covers the page with the background colour.
    void draw_cls() override;
    void draw_line(Span const& line, Color color) override;
    void draw_box(Span const& box, Color color) override;
    void draw_fill_box(Span const& box, Color color) override;
    void draw_circle(double x, double y, double radius, Color color) override;
    void draw_text(std::string_view text) override;

private:
    class Document;

    // Twips in a unit of ScaleMode.
    double unit_x() const { return ScaleMode() == scale_twips ? 1 : twips_per_pixel_.x; }
    double unit_y() const { return ScaleMode() == scale_twips ? 1 : twips_per_pixel_.y; }
    double pixels_x(double coordinate) const;
    double pixels_y(double coordinate) const;
    Document& document();

    std::filesystem::path file_;
    PaperSize paper_;
    TwipsPerPixel twips_per_pixel_;
    std::unique_ptr<PaperFonts> fonts_;
    std::unique_ptr<Document> document_; // nullptr after EndDoc
};

} // namespace zendara
