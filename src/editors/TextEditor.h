#pragma once

#include <string>
#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// The description and performance of an aircraft stand in its aircraft.cfg on one line each, with escapes for
// line ends, tabs and slashes.

// The text to be read and edited: \n becomes a line end, CR LF, then \t a tab, then \/ a slash. Any other
// backslash stands for itself.
std::string PlainText(std::string_view stored);
// The reverse. CR LF, LF and CR are line ends. A stored text that this gave comes back from PlainText and
// StoredText as it is.
std::string StoredText(std::string_view plain);

// Opens frmTextEdit, modal, on a stored text, with that caption. The result is the edited text, stored again;
// on cancel, and by the close box, it is `text` unchanged.
std::string EditText(Context& context, std::string_view title, const std::string& text, Form& owner);

// Procedures of the window's buttons.
void AcceptText(Context& context);
void CancelText(Context& context);

}  // namespace orlo
