#pragma once

#include "services/MessageHost.h"
#include "services/ProgressHost.h"
#include "services/WindowHost.h"

namespace orlo {

// What a front end does for the program.
class FrontEnd : public ProgressHost, public MessageHost, public WindowHost {};

}  // namespace orlo
