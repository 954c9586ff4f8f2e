#include "script/session.hpp"

#include "script/steps.hpp"
#include "zendara/form/form.hpp"
#include "zendara/support/failure.hpp"

#include <nlohmann/json.hpp>

#include <new>
#include <stdexcept>
#include <utility>

namespace zendara::program
{

Session::Session(Pictures pictures) : platform_(pictures) {}

void Session::run(Script const& script)
{
    for (std::size_t i = 0; i < script.steps().size(); ++i) {
        place_ = {i, {}};
        run_step(script.steps()[i]);
    }
    output_.flush();
}

void Session::run_step(Step const& step)
{
    try {
        step.kind->run(*this, step);
    } catch (Failure const& failure) {
        print_failure(name_of(failure.kind()));
    } catch (std::bad_alloc const&) {
        print_failure(name_of(FailureKind::Overflow)); // more than the memory takes
    } catch (std::length_error const&) {
        print_failure(name_of(FailureKind::Overflow));
    }
}

void Session::queue_modal(Step const& step)
{
    modals_.push_back({place_.step, &step.inner});
    platform_.on_modal = [this](Form& form) { answer(form); };
}

void Session::answer(Form& form)
{
    if (modals_.empty())
        return; // the platform cancels a form that stays up
    Modal const modal = modals_.front();
    modals_.pop_front();
    Objects::Guest const dialog(objects_, "$dialog", form);
    Place const place_outside = place_;
    for (std::size_t i = 0; i < modal.steps->size(); ++i) {
        place_ = {modal.step, i};
        run_step((*modal.steps)[i]);
    }
    place_ = place_outside;
}

Json Session::line_start() const
{
    Json line = {{"step", place_.step}};
    if (place_.modal)
        line["modal"] = *place_.modal;
    return line;
}

void Session::print(char const* name, Json value)
{
    Json line = line_start();
    line[name] = std::move(value);
    output_.line(text_of(line));
}

void Session::print(char const* name, Json value, char const* second_name, Json second_value)
{
    Json line = line_start();
    line[name] = std::move(value);
    line[second_name] = std::move(second_value);
    output_.line(text_of(line));
}

void Session::print_failure(std::string_view kind)
{
    print("failure", std::string(kind));
}

} // namespace zendara::program
