#include "zendara/dialogs/property_page.hpp"

#include "zendara/dialogs/row_layout.hpp"
#include "zendara/form/form.hpp"
#include "zendara/support/interface.hpp"
#include "zendara/support/trap.hpp"

namespace zendara
{

PropertyPage::PropertyPage(Platform& platform, char const* name, char const* caption_text)
    : Window(platform, name), frame_(*this, "Frame1")
{
    caption(caption_text);
    frame_.has_border = false;
    on("SelectionChanged", [this](std::span<Value>) { SelectionChanged(); });
    on("ApplyChanges", [this](std::span<Value>) { ApplyChanges(); });
}

// Filling the fields changes them, but not by a user.
void PropertyPage::SelectionChanged()
{
    Object& control = first_selected();
    for (auto const& field : fields_)
        field->read(control);
    if (on_selection)
        on_selection(control);
    changed_ = false;
}

void PropertyPage::ApplyChanges()
{
    Object& control = first_selected();
    for (auto const& field : fields_)
        trap({&platform(), *this, "ApplyChanges", "field"}, [&] { field->write(control); });
    changed_ = false;
}

Object& PropertyPage::first_selected() const
{
    if (selected_.empty() || selected_.front() == nullptr)
        fail(FailureKind::ObjectNotSet, "no control is selected");
    return *selected_.front();
}

void PropertyPage::place(RowLayout& rows)
{
    frame_.Move(form_margin, form_margin, 0, 0);
    rows.place();
    take_size(frame_.Width() + 2 * form_margin, frame_.Height() + 2 * form_margin);
    tab_order = in_reading_order(*this);
}

Interface const& PropertyPage::host_interface() const
{
    using P = PropertyPage;
    static Interface const table{
        "PropertyPage", "A property page of a control.",
        join({place_and_looks(),
              {property<P, ObjectList, &P::SelectedControls, &P::SelectedControls>(
                   "SelectedControls", "The controls of the page; the first one counts."),
               property<P, BooleanWord, &P::Changed, &P::Changed>("Changed", "Whether a field has been edited."),
               method<&P::SelectionChanged>("SelectionChanged", "Reads the first control."),
               method<&P::ApplyChanges>("ApplyChanges", "Writes to the first control.")}})};
    return table;
}

} // namespace zendara
