#include "mainwindow/GetScenery.h"

#include "simulator/Scenery.h"

namespace orlo {

bool GetScenery(Context& context, BusyForm& busy, int value) {
    busy.Stage("Getting FS2002 Scenery...", value);
    return ReadScenery(context.session, context.services);
}

}  // namespace orlo
