#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "forms/Event.h"
#include "forms/Forms.h"

namespace orlo {

// What the shell knows of a form. What concerns all forms walks this list: the event pump, the help, the
// tests.
struct FormFacts {
    Form& (*form)(Forms& forms);
    std::size_t size;  // of the form in bytes; their sum is that of Forms, which proves that none is missing
    std::vector<EventTable> (*events)();
    std::string_view helpPage;  // a file of the folder Help; the main window has one for each pane instead
};

std::span<const FormFacts> AllForms();

// The page that F1 opens on the form: of the main window, that of the chosen pane; of a form that isn't in
// the list, the contents.
std::string_view HelpPageOf(Forms& forms, const Form& form);

}  // namespace orlo
