#pragma once

#include <QTableView>
#include <string>
#include <vector>

#include "desktop/Binder.h"
#include "desktop/ListModel.h"

class QItemSelection;

namespace orlo {

// Draws a list with its selection, and writes both from what the user does. A selection is passed in ranges
// of rows, never row by row; one in so many pieces that the toolkit would choke on them is drawn from the
// form alone.
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
    // Both come from one act of the user, which is one event.
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
    int currentColumn_ = 0;  // before the rows were drawn anew
    bool drawing_ = false;
    bool inPieces_ = false;  // the toolkit doesn't hold the whole selection
    bool announced_ = false;
};

}  // namespace orlo
