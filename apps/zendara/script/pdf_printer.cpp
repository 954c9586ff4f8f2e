#include "script/pdf_printer.hpp"

#include "script/options.hpp"
#include "zendara/support/failure.hpp"
#include "zendara/support/interface.hpp"

#include <string>

namespace zendara::program
{

namespace
{

std::string file_of(Json const& options)
{
    std::string file = text_option(options, "file", "");
    if (file.empty())
        fail(FailureKind::InvalidProcedureCall, "a PdfPrinter needs the option file");
    return file;
}

PaperSize paper_of(Json const& options)
{
    auto const name = text_option(options, "page", "A4");
    auto const paper = paper_size_of(name);
    if (!paper)
        throw Failure(FailureKind::InvalidProcedureCall, "there is no page \"" + name + "\", only A4 and Letter");
    return truth_option(options, "landscape", false) ? paper->turned() : *paper;
}

TwipsPerPixel twips_per_pixel_of(Json const& options)
{
    TwipsPerPixel const usual;
    return {number_option(options, "TwipsPerPixelX", usual.x), number_option(options, "TwipsPerPixelY", usual.y)};
}

} // namespace

PdfPrinter::PdfPrinter(Json const& options) : paper_(file_of(options), paper_of(options), twips_per_pixel_of(options))
{
}

Interface const& PdfPrinter::host_interface() const
{
    using P = PdfPrinter;
    static Interface const table{"PdfPrinter",
                                 "A printer whose pages go into a PDF or SVG file.",
                                 {method<&P::NewPage>("NewPage", "Ends the page and begins another one."),
                                  method<&P::EndDoc>("EndDoc", "Ends the last page and writes the file.")}};
    return table;
}

} // namespace zendara::program
