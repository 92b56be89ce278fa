#pragma once

#include "forms/ExportPane.h"
#include "forms/Form.h"
#include "forms/MainMenus.h"
#include "forms/MovePane.h"
#include "forms/ProjectPane.h"
#include "forms/ShufflePane.h"
#include "forms/TimetablePane.h"

namespace orlo {

// The tabs of the main window.
struct MainTabs {
    explicit MainTabs(Form& form);

    TabStrip tabMain;
};

// The main window: a menu bar, tabs with a pane each, and a status bar. Its parts, and the controls in them,
// are in the order that the eye and the tab key follow. docs/captions.md lists the captions that were ours to
// choose.
struct MainForm : Form, MainMenus, MainTabs, ShufflePane, MovePane, ExportPane, TimetablePane, ProjectPane {
    MainForm();

    StatusBar sbMain{*this, "sbMain"};

    bool HandlingNodeCheck = false;  // further check events then do nothing
};

}  // namespace orlo
