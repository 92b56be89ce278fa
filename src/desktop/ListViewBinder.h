#pragma once

#include <QTableView>
#include <string>
#include <vector>

#include "desktop/Binder.h"
#include "desktop/ListModel.h"

class QItemSelection;

namespace orlo {

// Draws a list with its current row and selection, and writes both when the user changes them. A selection is
// passed in ranges of rows, not row by row. The toolkit is too slow with thousands of ranges; a selection of
// so many stays in the form alone and is painted from it.
class ListViewBinder : public Binder {
  public:
    ListViewBinder(ListView& list, QWidget& parent, EventSink& sink);
    ~ListViewBinder() override;
    void TakeRequests() override;

  protected:
    void DrawContent() override;
    void GoBack() override;

  private:
    void Connect();
    void DrawRows();
    void DrawHeader();
    enum class Fit { Anew, Grow };
    void FitColumns(Fit fit);
    void DrawSelection();
    void DrawCurrent();
    void UserSelects(const QItemSelection& selected, const QItemSelection& deselected);
    void Toggle(const std::vector<PositionRange>& ranges);
    void UserMoves(const QModelIndex& index);
    // One act can change both the selection and the current row; both announce it, and one SelectRow is
    // posted.
    void AnnounceSelection();
    void PostSelection();

    ListView& list_;
    QTableView& shown_;
    ListModel model_;
    std::vector<std::string> drawnKeys_;
    bool fittedToRows_ = false;
    std::int64_t drawnContent_ = -1;
    std::int64_t drawnOrder_ = -1;
    std::int64_t drawnSelection_ = -1;
    std::int32_t drawnCurrent_ = -1;
    int currentColumn_ = 0;  // of the toolkit's current cell before the last Reset
    bool drawing_ = false;
    bool inPieces_ = false;  // the selection is in the form alone
    bool announced_ = false;
};

}  // namespace orlo
