#pragma once

#include <string>

#include "mainwindow/Context.h"

namespace orlo {

// The timetable as it is printed and saved: a head line, a line of column names, and a line a row as
// displayed. Columns start at fixed places; a text that is longer than its place pushes the next one on.
std::string TimetableText(const Context& context);

// An airport field as texts tell it.
std::string ShownAirports(const MainForm& form);

}  // namespace orlo
