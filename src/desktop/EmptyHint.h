#pragma once

#include <QAbstractItemView>
#include <string>

namespace orlo {

// What an empty list or tree says in place of its rows: one faint line in the middle, shortened where it
// doesn't fit, which a reader of the screen tells too.
class EmptyHint {
  public:
    // `shown` is empty where the view has rows.
    void Draw(QAbstractItemView& view, const std::string& shown);
    // Over what the view has painted.
    void Paint(QAbstractItemView& view) const;

  private:
    std::string drawn_;
};

}  // namespace orlo
