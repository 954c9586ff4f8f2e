#pragma once

#include "zendara/dialogs/option_group.hpp"
#include "zendara/dialogs/row_layout.hpp"
#include "zendara/dialogs/view_fields.hpp"
#include "zendara/form/check_box.hpp"

#include <functional>

namespace zendara
{

/// A field of a property page: it reads one property of a control and writes it back.
class PageField
{
public:
    virtual ~PageField() = default;

    virtual void read(Object& control) = 0;
    /// @throws Failure  when the property cannot take what the field holds
    virtual void write(Object& control) = 0;

    /// Called at the end of every change of the field.
    std::function<void()> on_change;
};

/// Whether an empty text may stand in a field.
enum class EmptyText { Stands, IsReplaced };

/// A number field of a page.
struct PageNumberRow {
    char const* name;
    char const* caption;
    char access_key;
    char const* unit;
    char const* property;
    double instead_of_bad_text;
    EmptyText empty_text;
};

class PageNumber final : public PageField
{
public:
    PageNumber(Child& container, PageNumberRow const& row);

    Label caption;
    TextBox box;
    Label unit;

    void read(Object& control) override;
    void write(Object& control) override;

    void add_to(RowLayout& rows) { rows.add({&caption}, {&box, &unit}); }

private:
    void text_changed();

    PageNumberRow const& row_;
};

/// A box of a page that is checked for True. Its caption stands before it, or in it where it is a push button.
struct PageCheckRow {
    char const* name;
    char const* caption;
    char access_key;
    char const* property;
    bool is_push_button = false;
};

class PageCheck final : public PageField
{
public:
    PageCheck(Child& container, PageCheckRow const& row);

    Label caption;
    CheckBox box;

    void read(Object& control) override;
    void write(Object& control) override;

    void add_to(RowLayout& rows) { rows.add({&caption}, {&box}); }

private:
    PageCheckRow const& row_;
};

/// A button of a group, and the property's value that it stands for.
struct PageOptionRow {
    int index;
    char const* caption;
    std::int16_t value;
};

class PageOptions final : public PageField
{
public:
    PageOptions(Child& container, char const* name, char const* caption, char access_key, char const* property,
                std::span<PageOptionRow const> rows);

    OptionGroup group;

    void read(Object& control) override;
    void write(Object& control) override;

    void add_to(RowLayout& rows) { rows.add({&group.caption}, {&group.frame}); }

private:
    char const* property_;
    std::span<PageOptionRow const> rows_;
};

/// An angle of a page, whose field is a part of something else.
class PageAngle final : public PageField
{
public:
    PageAngle(AngleField& field, char const* property);

    void read(Object& control) override;
    void write(Object& control) override;

private:
    AngleField& field_;
    char const* property_;
};

} // namespace zendara
