#pragma once

#include "json.hpp"
#include "zendara/files/paper_surface.hpp"

namespace zendara::program
{

/// A printer of scripts: its pages go into a file at EndDoc. It answers to all names of a surface as well.
class PdfPrinter : public Object
{
public:
    /// @param options  "file" (required), "page" ("A4"), "landscape" (false), "TwipsPerPixelX", "TwipsPerPixelY" (2.4)
    /// @throws Failure  TypeMismatch for an option of another type, InvalidProcedureCall for a missing file name or an
    ///                  unknown page
    explicit PdfPrinter(Json const& options);

    void NewPage() { paper_.NewPage(); }
    void EndDoc() { paper_.EndDoc(); }

    Object* inner() override { return &paper_; }
    Interface const& host_interface() const override;

private:
    PaperSurface paper_;
};

} // namespace zendara::program
