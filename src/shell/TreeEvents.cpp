#include "shell/TreeEvents.h"

#include "mainwindow/AircraftTrees.h"
#include "mainwindow/BulkOperation.h"
#include "mainwindow/TreeSelection.h"

namespace orlo {
