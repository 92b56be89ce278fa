#pragma once

#include <ostream>

#include "forms/Form.h"
#include "forms/ListView.h"
#include "forms/TreeView.h"

namespace orlo {

// What the commands that read a control print; docs/console.md tells how.
void PrintControl(std::ostream& out, const Control& control);
void PrintRows(std::ostream& out, const ListView& list);
void PrintEntries(std::ostream& out, const ComboBox& combo);
void PrintProperties(std::ostream& out, const Control& control);
void PrintProperties(std::ostream& out, const Form& form);
// The visible entries of a pop-up menu, name TAB caption.
void PrintMenu(std::ostream& out, const MenuEntry& menu);

}  // namespace orlo
