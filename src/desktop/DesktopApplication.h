#pragma once

#include <QApplication>
#include <functional>
#include <string>

namespace orlo {

// The application object. The toolkit lets no exception pass through its loops, so that one that strays from
// a widget, a model or a timer ends here and the loop goes on.
class DesktopApplication : public QApplication {
  public:
    // `count` must outlive the object.
    DesktopApplication(int& count, char** words) : QApplication(count, words) {}

    bool notify(QObject* receiver, QEvent* event) override;

    // Told what strayed; may be empty.
    std::function<void(const std::string& reason)> onFailure;
};

}  // namespace orlo
