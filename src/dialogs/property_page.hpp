#pragma once

#include "zendara/dialogs/page_fields.hpp"
#include "zendara/form/children.hpp"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zendara
{

/// A property page: fields beside a control while its host is being designed. It keeps no settings: it reads the first
/// selected control's properties into its fields, and writes them back on Apply.
///
/// The container sets SelectedControls, raises "SelectionChanged" and "ApplyChanges", and reads Changed.
class PropertyPage : public Window
{
public:
    PropertyPage(Platform& platform, char const* name, char const* caption);

    /// The controls of the page, which it does not own. Only the first one counts.
    ObjectList SelectedControls() const { return selected_; }
    void SelectedControls(ObjectList controls) { selected_ = std::move(controls); }

    /// Whether a field has been edited, which enables Apply.
    BooleanWord Changed() const { return changed_; }
    void Changed(BooleanWord changed) { changed_ = changed; }

    /// Reads the properties of the first selected control into the fields.
    /// @throws Failure  ObjectNotSet when none is selected, NoSuchMember for a control of another kind
    void SelectionChanged();
    /// Writes each field to the first selected control. A text that its property cannot take leaves it as it was.
    /// @throws Failure  ObjectNotSet when none is selected
    void ApplyChanges();

    /// The fields that take the focus, in the order of the Tab key.
    std::vector<Child*> tab_order;

    Interface const& host_interface() const override;

protected:
    /// Takes a field over; from now on it is read, written and watched.
    template <class Field, class... Arguments> Field& add(Arguments&&... arguments)
    {
        auto field = std::make_unique<Field>(std::forward<Arguments>(arguments)...);
        Field& added = *field;
        added.on_change = [this] { changed_ = true; };
        fields_.push_back(std::move(field));
        return added;
    }

    /// Called when the fields have been read, with the control.
    std::function<void(Object&)> on_selection;

    /// Places the rows in the page's frame and makes the page as large.
    void place(RowLayout& rows);

    Frame frame_;

private:
    Object& first_selected() const;

    std::vector<std::unique_ptr<PageField>> fields_;
    ObjectList selected_;
    BooleanWord changed_;
};

} // namespace zendara
