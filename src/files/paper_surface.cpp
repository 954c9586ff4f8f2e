#include "zendara/files/paper_surface.hpp"

#include "zendara/files/paper_document.hpp"
#include "zendara/files/paper_fonts.hpp"
#include "zendara/files/polygon_run.hpp"
#include "zendara/files/whole_file.hpp"
#include "zendara/support/checked.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

namespace zendara
{

namespace
{

// On screen a hatch repeats every 8 pixels of 15 twips; on paper its lines can be finer.
constexpr double hatch_pitch_twips = 120;
constexpr double hatch_line_twips = 6;

constexpr int most_lines_of_a_path = 1000; // viewers take long over endless ones

constexpr double longest_side_twips = 200 * 1440; // what PDF readers take

std::uint32_t pixel_of(Color color)
{
    return static_cast<std::uint32_t>(plain_color(color)) & 0xFFFFFF;
}

PaperFormat format_of(std::filesystem::path const& file)
{
    return file.extension() == ".svg" ? PaperFormat::Svg : PaperFormat::Pdf;
}

OutlinePen pen_of(Surface const& surface, Color color)
{
    return {pixel_of(color), std::max<std::int32_t>(surface.DrawWidth, 1)};
}

bool is_side(double twips)
{
    return twips >= 1 && twips <= longest_side_twips;
}

bool is_pixel(double twips)
{
    return twips > 0 && std::isfinite(twips);
}

} // namespace

/// The file being made: fills, pens and hatches in device pixels, texts in twips.
class PaperSurface::Document
{
public:
    Document(PaperFormat format, PaperSize const& paper, TwipsPerPixel const& twips_per_pixel, PaperFonts const& fonts)
        : paper_(paper), twips_per_pixel_(twips_per_pixel), fonts_(fonts), document_(format, paper)
    {
        cairo_set_line_join(canvas(), CAIRO_LINE_JOIN_ROUND);
        cairo_set_line_cap(canvas(), CAIRO_LINE_CAP_ROUND);
        cairo_set_fill_rule(canvas(), CAIRO_FILL_RULE_EVEN_ODD);
    }

    PaperFormat format() const { return document_.format(); }

    /// How the inside of a shape is shown.
    struct Fill {
        std::uint32_t pixel = 0;
        bool is_hatched = false;
    };
    struct Look {
        std::optional<Fill> fill;
        std::optional<OutlinePen> pen;
    };
    /// What the surface's fill and pen ask for.
    static Look look_of(Surface const& surface, Color pen);

    void add_polygon(std::array<DevicePoint, 4> const& corners, Look const& look);
    void draw_line(double x1, double y1, double x2, double y2, OutlinePen const& pen);
    void draw_box(double x1, double y1, double x2, double y2, Look const& look);
    void draw_circle(double x, double y, double radius, Look const& look);
    void draw_text(FontFace const& font, std::string_view text, double x, double top, std::uint32_t pixel);
    void fill_text_ground(FontFace const& font, std::string_view text, double x, double top, std::uint32_t pixel);
    void cover_page(std::uint32_t pixel);

    void end_page()
    {
        end_run();
        document_.end_page();
    }
    std::vector<char> finish() { return document_.finish(); }

private:
    cairo_t* canvas() { return document_.canvas(); }

    /// Draws what is gathered. Every call that draws anything else begins with it.
    void end_run();
    void end_lines();
    void show_run_as_image();
    void draw_frame_again(PolygonRun::Area const& place);
    void trace_box(double x1, double y1, double x2, double y2);
    void trace_polygon(std::array<DevicePoint, 4> const& corners);
    void paint_path(Look const& look);
    void hatch_path(std::uint32_t pixel);
    void stroke_path(OutlinePen const& pen);

    double twips_x(double pixels) const { return pixels * twips_per_pixel_.x; }
    double twips_y(double pixels) const { return pixels * twips_per_pixel_.y; }

    PaperSize paper_;
    TwipsPerPixel twips_per_pixel_;
    PaperFonts const& fonts_;
    PaperDocument document_;
    PolygonRun run_;
    /// The lines in the canvas' present path.
    struct Lines {
        OutlinePen pen;
        int count = 0;
        double end_x = 0, end_y = 0; // device pixels
    };
    /// The outlined box that was drawn last, if only polygons have followed.
    struct Frame {
        double left, top, right, bottom; // device pixels
        OutlinePen pen;
    };
    std::optional<Frame> frame_;
    Lines lines_; // none while run_ holds polygons
};

PaperSurface::Document::Look PaperSurface::Document::look_of(Surface const& surface, Color pen)
{
    Look look;
    if (surface.FillStyle != fill_none)
        look.fill = Fill{pixel_of(surface.FillColor), surface.FillStyle == fill_diagonal_cross};
    if (surface.DrawStyle != pen_none)
        look.pen = pen_of(surface, pen);
    return look;
}

void PaperSurface::Document::add_polygon(std::array<DevicePoint, 4> const& corners, Look const& look)
{
    auto const& [fill, pen] = look;
    if (fill && fill->is_hatched) {
        end_run();
        trace_polygon(corners);
        paint_path(look);
        return;
    }
    if (!run_.goes_on(pen))
        end_run();
    end_lines();
    run_.add({corners, fill ? fill->pixel : see_through}, pen);
}

void PaperSurface::Document::end_run()
{
    end_lines();
    if (run_.wants_image()) {
        show_run_as_image();
    } else {
        for (auto const& polygon : run_.polygons()) {
            trace_polygon(polygon.corners);
            auto const fill = polygon.fill == see_through ? std::nullopt : std::optional(Fill{polygon.fill});
            paint_path({fill, run_.pen()});
        }
    }
    run_.clear();
    frame_.reset();
}

void PaperSurface::Document::show_run_as_image()
{
    auto const picture = run_.picture({0, 0, paper_.width / twips_per_pixel_.x, paper_.height / twips_per_pixel_.y});
    if (!picture)
        return;
    auto const& place = picture->place;
    document_.show_image(picture->image, twips_x(place.left), twips_y(place.top), twips_x(place.right - place.left),
                         twips_y(place.bottom - place.top));
    draw_frame_again(place);
}

// Viewers let an image begin and end with their own pixels, which hides the thin frame drawn around it before.
void PaperSurface::Document::draw_frame_again(PolygonRun::Area const& place)
{
    constexpr double widest_gap = 3; // device pixels
    auto const is_beside = [](double frame, double edge) { return std::abs(frame - edge) <= widest_gap; };
    if (!frame_ || !is_beside(frame_->left, place.left) || !is_beside(frame_->top, place.top) ||
        !is_beside(frame_->right, place.right) || !is_beside(frame_->bottom, place.bottom))
        return;
    trace_box(frame_->left, frame_->top, frame_->right, frame_->bottom);
    stroke_path(frame_->pen);
}

// Lines of one pen are gathered into one path: contours are made of very many short ones.
void PaperSurface::Document::draw_line(double x1, double y1, double x2, double y2, OutlinePen const& pen)
{
    bool const goes_on = lines_.count > 0 && lines_.pen == pen && lines_.count < most_lines_of_a_path;
    if (!goes_on)
        end_run();
    bool const is_point = x1 == x2 && y1 == y2;
    if (is_point && pen.width <= 1)
        return; // a line leaves its last pixel out: there is none

    bool const begins_at_end = goes_on && x1 == lines_.end_x && y1 == lines_.end_y;
    if (!begins_at_end)
        cairo_move_to(canvas(), twips_x(x1), twips_y(y1));
    cairo_line_to(canvas(), twips_x(x2), twips_y(y2));
    lines_ = {pen, lines_.count + 1, x2, y2};
}

void PaperSurface::Document::end_lines()
{
    if (lines_.count > 0)
        stroke_path(lines_.pen);
    lines_ = {};
}

void PaperSurface::Document::draw_box(double x1, double y1, double x2, double y2, Look const& look)
{
    end_run();
    trace_box(x1, y1, x2, y2);
    paint_path(look);
    if (look.pen)
        frame_ = Frame{std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2), *look.pen};
}

void PaperSurface::Document::draw_circle(double x, double y, double radius, Look const& look)
{
    end_run();
    cairo_new_sub_path(canvas());
    cairo_arc(canvas(), twips_x(x), twips_y(y), twips_x(radius), 0, 2 * std::numbers::pi);
    cairo_close_path(canvas());
    paint_path(look);
}

void PaperSurface::Document::draw_text(FontFace const& font, std::string_view text, double x, double top,
                                       std::uint32_t pixel)
{
    end_run();
    document_.set_color(pixel);
    fonts_.show(canvas(), font, text, twips_x(x), twips_y(top));
}

void PaperSurface::Document::fill_text_ground(FontFace const& font, std::string_view text, double x, double top,
                                              std::uint32_t pixel)
{
    end_run();
    document_.set_color(pixel);
    cairo_rectangle(canvas(), twips_x(x), twips_y(top), fonts_.text_width(font, text), fonts_.line_height(font));
    cairo_fill(canvas());
}

void PaperSurface::Document::cover_page(std::uint32_t pixel)
{
    run_.clear();
    frame_.reset();
    lines_ = {};
    cairo_new_path(canvas());
    document_.set_color(pixel);
    cairo_paint(canvas());
}

void PaperSurface::Document::trace_box(double x1, double y1, double x2, double y2)
{
    cairo_rectangle(canvas(), twips_x(std::min(x1, x2)), twips_y(std::min(y1, y2)), twips_x(std::abs(x2 - x1)),
                    twips_y(std::abs(y2 - y1)));
}

void PaperSurface::Document::trace_polygon(std::array<DevicePoint, 4> const& corners)
{
    for (auto const& corner : corners)
        cairo_line_to(canvas(), twips_x(corner.x), twips_y(corner.y));
    cairo_close_path(canvas());
}

void PaperSurface::Document::paint_path(Look const& look)
{
    auto const& [fill, pen] = look;
    if (fill && fill->is_hatched) {
        hatch_path(fill->pixel);
    } else if (fill) {
        document_.set_color(fill->pixel);
        cairo_fill_preserve(canvas());
    }
    if (pen)
        stroke_path(*pen);
    cairo_new_path(canvas());
}

// Lines through the clipped shape; a repeated tile would break them at its edges. They are fixed to the page, so that
// the hatches of neighbouring shapes meet. The path stays.
void PaperSurface::Document::hatch_path(std::uint32_t pixel)
{
    cairo_path_t* const path = cairo_copy_path(canvas());
    cairo_save(canvas());
    cairo_clip(canvas());
    double left = 0, top = 0, right = 0, bottom = 0;
    cairo_clip_extents(canvas(), &left, &top, &right, &bottom);

    double const height = bottom - top;
    auto const first = [](double place) { return std::floor(place / hatch_pitch_twips) * hatch_pitch_twips; };
    for (double falling = first(left - bottom); falling <= right - top; falling += hatch_pitch_twips) {
        cairo_move_to(canvas(), falling + top, top); // x - y stays the same
        cairo_rel_line_to(canvas(), height, height);
    }
    for (double rising = first(left + top); rising <= right + bottom; rising += hatch_pitch_twips) {
        cairo_move_to(canvas(), rising - top, top); // x + y stays the same
        cairo_rel_line_to(canvas(), -height, height);
    }
    document_.set_color(pixel);
    cairo_set_line_width(canvas(), hatch_line_twips);
    cairo_stroke(canvas());
    cairo_restore(canvas());
    cairo_append_path(canvas(), path);
    cairo_path_destroy(path);
}

void PaperSurface::Document::stroke_path(OutlinePen const& pen)
{
    document_.set_color(pen.pixel);
    cairo_set_line_width(canvas(), twips_x(pen.width));
    cairo_stroke(canvas());
}

PaperSurface::PaperSurface(std::filesystem::path file, PaperSize const& paper, TwipsPerPixel const& twips_per_pixel)
    : file_(std::move(file)), paper_(paper), twips_per_pixel_(twips_per_pixel), fonts_(std::make_unique<PaperFonts>())
{
    if (!is_side(paper.width) || !is_side(paper.height))
        fail(FailureKind::InvalidProcedureCall, "a page has to be between 1 twip and 200 inches wide and high");
    if (!is_pixel(twips_per_pixel.x) || !is_pixel(twips_per_pixel.y))
        fail(FailureKind::InvalidProcedureCall, "the twips per pixel of a page have to be above 0");
    start_scale_mode(scale_twips);
    width = paper.width;
    height = paper.height;
    document_ = std::make_unique<Document>(format_of(file_), paper_, twips_per_pixel_, *fonts_);
}

PaperSurface::~PaperSurface() = default;

PaperSurface::Document& PaperSurface::document()
{
    if (!document_)
        fail(FailureKind::InvalidProcedureCall, "the document has been ended");
    return *document_;
}

double PaperSurface::pixels_x(double coordinate) const
{
    return to_i32(coordinate * unit_x() / twips_per_pixel_.x);
}

double PaperSurface::pixels_y(double coordinate) const
{
    return to_i32(coordinate * unit_y() / twips_per_pixel_.y);
}

void PaperSurface::NewPage()
{
    if (document().format() == PaperFormat::Svg)
        fail(FailureKind::InvalidProcedureCall, "an SVG file has one page only");
    document().end_page();
}

void PaperSurface::EndDoc()
{
    document().end_page();
    auto const ended = std::move(document_);
    write_whole_file(file_, ended->finish());
}

void PaperSurface::Polygon(std::array<DevicePoint, 4> const& corners)
{
    document().add_polygon(corners, Document::look_of(*this, ForeColor));
}

void PaperSurface::draw_line(Span const& line, Color color)
{
    Document& document = this->document();
    if (DrawStyle != pen_none)
        document.draw_line(pixels_x(line.x1), pixels_y(line.y1), pixels_x(line.x2), pixels_y(line.y2),
                           pen_of(*this, color));
}

void PaperSurface::draw_box(Span const& box, Color color)
{
    document().draw_box(pixels_x(box.x1), pixels_y(box.y1), pixels_x(box.x2), pixels_y(box.y2),
                        Document::look_of(*this, color));
}

// All four edges are part of the box: it reaches half a pixel beyond the centres of its corners.
void PaperSurface::draw_fill_box(Span const& box, Color color)
{
    auto const [left, right] = std::minmax({pixels_x(box.x1), pixels_x(box.x2)});
    auto const [top, bottom] = std::minmax({pixels_y(box.y1), pixels_y(box.y2)});
    document().draw_box(left - 0.5, top - 0.5, right + 0.5, bottom + 0.5, {Document::Fill{pixel_of(color)}, {}});
}

void PaperSurface::draw_circle(double x, double y, double radius, Color color)
{
    double const radius_px = pixels_x(radius);
    if (radius_px >= 0)
        document().draw_circle(pixels_x(x), pixels_y(y), radius_px, Document::look_of(*this, color));
}

void PaperSurface::draw_text(std::string_view text)
{
    double const left = pixels_x(CurrentX);
    double const top = pixels_y(CurrentY);
    if (!FontTransparent)
        document().fill_text_ground(Font, text, left, top, pixel_of(BackColor));
    document().draw_text(Font, text, left, top, pixel_of(ForeColor));
}

double PaperSurface::TextWidth(std::string_view text) const
{
    return fonts_->text_width(Font, text) / unit_x();
}

double PaperSurface::TextHeight(std::string_view) const
{
    return fonts_->line_height(Font) / unit_y();
}

void PaperSurface::draw_cls()
{
    document().cover_page(pixel_of(BackColor));
}

} // namespace zendara
