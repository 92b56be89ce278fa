#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "forms/Event.h"
#include "forms/Forms.h"

namespace orlo {

// What the shell knows of a form. Everything that concerns all forms walks this list: the events, the look-up
// of names, the help, tests and pictures.
struct FormFacts {
    Form& (*form)(Forms& forms);
    std::size_t size;  // of the form, which proves that the list is whole
    std::vector<EventTable> (*events)();
    std::string_view helpPage;  // of the main window: its first page, where no tab tells another
};

std::span<const FormFacts> AllForms();

// The page that F1 opens on the form as it stands.
std::string_view HelpPageOf(Forms& forms, const Form& form);

}  // namespace orlo
