#pragma once

namespace orlo {

// The style that is the toolkit's own draws the edges of fields and check boxes darker than the window, which
// nobody sees in dark colours; from now on they are drawn lighter there, and lines between the entries of
// menus too. The lists of its combo boxes get a scroll bar, and its disabled texts lose their shadow. Other
// styles stay as they are. To be called once, before the first window.
void UseVisibleEdges();

}  // namespace orlo
