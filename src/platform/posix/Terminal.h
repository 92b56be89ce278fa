#pragma once

namespace orlo {

enum class StandardStream { Input, Output, Error };

// Whether a person reads or types at the other end.
bool IsTerminal(StandardStream stream);

}  // namespace orlo
