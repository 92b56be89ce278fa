#include "desktop/DesktopApplication.h"

#include <exception>
#include <new>

namespace orlo {

bool DesktopApplication::notify(QObject* receiver, QEvent* event) {
    std::string reason;
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::bad_alloc&) {
        reason = "not enough memory";
    } catch (const std::exception& failure) {
        reason = failure.what();
    }
    if (onFailure) onFailure(reason);
    return false;
}

}  // namespace orlo
