#pragma once

#include <QAbstractItemView>
#include <string>

namespace orlo {

// What an empty list or tree shows in place of its rows: one faint line in the middle, shortened where it
// doesn't fit. It is the view's accessible description too.
class EmptyHint {
  public:
    // Takes the text, empty where the view has rows, and asks for a repaint where it changed.
    void Draw(QAbstractItemView& view, const std::string& shown);
    // To be called within the view's paint event, after its own painting.
    void Paint(QAbstractItemView& view) const;

  private:
    std::string drawn_;
};

}  // namespace orlo
