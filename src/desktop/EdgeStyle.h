#pragma once

namespace orlo {

// Changes the toolkit's own style, "Fusion", where it is in use; other styles stay as they are. Fusion draws
// the edges of fields and check boxes darker than the window, so that they can't be seen in a dark palette.
// There they, and the lines between menu entries, become lighter. In every palette the lists of combo boxes
// get a scroll bar, and disabled texts lose their shadow. To be called once, before the first window.
void UseVisibleEdges();

}  // namespace orlo
