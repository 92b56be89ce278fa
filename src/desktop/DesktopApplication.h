#pragma once

#include <QApplication>
#include <functional>
#include <string>

namespace orlo {

// The application object. The toolkit's event loops can't pass an exception on. One that a widget, a model or
// a timer throws ends here, and the loop goes on.
class DesktopApplication : public QApplication {
  public:
    // `count` must outlive the object.
    DesktopApplication(int& count, char** words) : QApplication(count, words) {}

    bool notify(QObject* receiver, QEvent* event) override;

    // Called with the exception's text. Empty: the exception is dropped.
    std::function<void(const std::string& reason)> onFailure;
};

}  // namespace orlo
