#pragma once

#include "zendara/files/freetype_glyphs.hpp"
#include "zendara/form/children.hpp"
#include "zendara/form/platform.hpp"
#include "zendara/render/surface/recorder.hpp"
#include "zendara/support/trap.hpp"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace zendara
{

/// How pictures of a headless container are drawn.
enum class Pictures { Drawn, Recorded };

/// A container without a screen: pictures in memory, message boxes kept in a list, modal forms driven by a handler.
class HeadlessPlatform : public Platform, FailureSink
{
public:
    /// @param pictures  Recorded: every surface keeps its drawing calls, texts have fixed extents and the decimal mark
    ///                  is a point, so that a record is the same on every machine
    explicit HeadlessPlatform(Pictures pictures = Pictures::Drawn);

    struct MessageBox {
        std::string title;
        std::string text;
        int style = 0;
    };
    /// Hands over and forgets the message boxes that were shown.
    std::vector<MessageBox> take_messages();

    /// Hands over and forgets the failures that the routines of a panel, a control (its panel's) or a dialog have
    /// trapped. Of each no more than the first thousand are kept: a plot whose every cell fails has no news after them.
    std::vector<TrappedFailure> take_failures(Object const& source);

    /// Stands in for the user while a modal form is up; without it the form is cancelled.
    std::function<void(Form&)> on_modal;
    /// Stands in for the messages that one turn of the message loop lets in.
    std::function<void()> on_do_events;

    std::string const& help_file() const { return help_file_; }
    void set_application_path(std::string path) { application_path_ = std::move(path); }
    GlyphSource& glyphs() { return glyphs_; }
    Pictures pictures() const { return pictures_; }

    void message_box(std::string_view text, int style, std::string_view title) override;
    FailureSink* failure_sink() override { return this; }
    void do_events() override;
    void show_modal(Form& form) override;
    double twips_per_pixel_x() const override { return 15; }
    double twips_per_pixel_y() const override { return 15; }
    std::string application_path() const override { return application_path_; }
    std::string version() const override;
    void set_help_file(std::string const& file) override { help_file_ = file; }
    Surface* default_printer() override { return default_printer_.get(); }
    std::unique_ptr<Surface> make_surface(PictureBox& box) override;
    Extent text_extent(FontFace const& face, std::string_view text) override;

private:
    void trapped(Object const& source, TrappedFailure const& failure) override;

    Pictures pictures_;
    FreeTypeGlyphs glyphs_;
    std::unique_ptr<Surface> default_printer_; // a recording one, or none
    std::vector<MessageBox> messages_;
    std::map<Object const*, std::vector<TrappedFailure>> failures_;
    std::string application_path_;
    std::string help_file_;
};

} // namespace zendara
