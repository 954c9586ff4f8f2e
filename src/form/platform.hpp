#pragma once

#include "zendara/render/surface/font.hpp"
#include "zendara/render/surface/surface.hpp"
#include "zendara/support/container.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace zendara
{

class Form;
class PictureBox;

/// The few services that a container gives to the controls in it.
class Platform : public Container
{
public:
    /// Lets other messages of the user interface in, once.
    virtual void do_events() = 0;

    /// Shows a form modally; returns when the user has closed it.
    virtual void show_modal(Form& form) = 0;

    virtual double twips_per_pixel_x() const = 0;
    virtual double twips_per_pixel_y() const = 0;

    /// The folder of the library.
    virtual std::string application_path() const = 0;

    virtual void set_help_file(std::string const& file) = 0;

    /// The drawing surface of a picture box.
    virtual std::unique_ptr<Surface> make_surface(PictureBox& box) = 0;

    /// Extent of a text in twips, as a label shows it.
    struct Extent {
        double width = 0;
        double height = 0;
    };
    virtual Extent text_extent(FontFace const& face, std::string_view text) = 0;

    /// Handles of the platform for a control's window, 0 where it has none.
    virtual std::int32_t device_handle() const { return 0; }
    virtual std::int32_t window_handle() const { return 0; }
};

} // namespace zendara
