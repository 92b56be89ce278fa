// Times of the desktop program, printed and never asserted:
//
//     orlo-window-bench [FLIGHTS]
//
// the start until the main window is painted, beside a program of one empty window; the waits of the loop of
// events while a plan of FLIGHTS flights (100,000 without it) is opened, shuffled, searched and saved; and a
// list of a million rows.

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <memory_resource>

#include "core/Text.h"
#include "desktop/EdgeStyle.h"
#include "platform/Platform.h"
#include "qt/RealProgram.h"
#include "qt/UserHands.h"

namespace orlo::bench {
namespace {

constexpr int kStarts = 9;
constexpr std::int32_t kRows = 1'000'000;
constexpr const char* kEmptyMode = "--show-empty";
constexpr const char* kProgramMode = "--show-program";

// Says when a window is painted for the first time, and ends the process.
class FirstPaint : public QObject {
  public:
    FirstPaint() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Paint || !object->isWidgetType()) return false;
        std::puts("painted");
        std::fflush(stdout);
        std::_Exit(0);
    }
};

int ShowEmptyWindow() {
    FirstPaint paint;
    QWidget window;
    window.show();
    return QApplication::exec();
}

int ShowProgram(const QString& world) {
    UseVisibleEdges();
    FirstPaint paint;
    test::RealProgram real(PathFromQString(world));
    if (!StartUp(real.program.context)) return 1;
    real.host.RunUntilClosed(real.form);
    return 0;
}

// Milliseconds from before the process starts.
double TimeOfStart(const QStringList& words) {
    QElapsedTimer time;
    time.start();
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), words);
    process.waitForReadyRead(20000);
    const double passed = static_cast<double>(time.nsecsElapsed()) / 1e6;
    const bool painted = process.readAllStandardOutput().startsWith("painted");
    process.waitForFinished();
    return painted ? passed : -1;
}

void PrintStartTimes(const QString& world) {
    std::vector<double> empty;
    std::vector<double> program;
    for (int i = 0; i < kStarts; ++i) {
        empty.push_back(TimeOfStart({kEmptyMode}));
        program.push_back(TimeOfStart({kProgramMode, world}));
    }
    std::sort(empty.begin(), empty.end());
    std::sort(program.begin(), program.end());
    std::printf("start: empty window %.0f ms, main window %.0f ms (medians of %d)\n", empty[kStarts / 2],
                program[kStarts / 2], kStarts);
}

// How long the loop of events waits while an operation runs: a timer that wants to fire every 10 ms is late
// by as much as a paint would be.
class LoopWatch : public QObject {
  public:
    explicit LoopWatch(const ProgressForm& progress) : progress_(progress) {
        timer_.setTimerType(Qt::PreciseTimer);
        connect(&timer_, &QTimer::timeout, this, [this] { Tick(); });
    }

    void Start() {
        waits_.clear();
        whole_.start();
        last_.start();
        before_ = Stage();
        timer_.start(kTickMilliseconds);
    }

    void NoteDone() { done_ = whole_.elapsed(); }

    // Prints the time from Start to NoteDone, and until now the longest waits, each with the stages around
    // it.
    void Print(const char* operation) {
        Tick();
        timer_.stop();
        std::printf("%-10s %7lld ms\n", operation, done_);
        std::sort(waits_.begin(), waits_.end(),
                  [](const Wait& a, const Wait& b) { return a.milliseconds > b.milliseconds; });
        for (std::size_t i = 0; i < std::min<std::size_t>(waits_.size(), kWaitsPrinted); ++i) {
            std::printf("    wait %5lld ms at %6lld: %s -> %s\n", waits_[i].milliseconds, waits_[i].end,
                        waits_[i].from.c_str(), waits_[i].to.c_str());
        }
        std::fflush(stdout);
    }

  private:
    static constexpr int kTickMilliseconds = 10;
    static constexpr std::size_t kWaitsPrinted = 3;
    struct Wait {
        long long milliseconds;
        long long end;  // since Start
        std::string from;
        std::string to;
    };

    std::string Stage() const {
        if (!progress_.visible) return "(no progress)";
        return progress_.lblProgress.caption + ' ' + std::to_string(progress_.pbProgress.value) + '/' +
               std::to_string(progress_.pbProgress.maximum);
    }
    void Tick() {
        std::string now = Stage();
        waits_.push_back({last_.restart(), whole_.elapsed(), before_, now});
        before_ = std::move(now);
    }

    const ProgressForm& progress_;
    QTimer timer_;
    QElapsedTimer whole_;
    QElapsedTimer last_;
    long long done_ = 0;
    std::string before_;
    std::vector<Wait> waits_;
};

// Answers what comes up by its default button.
class Answering : public QObject {
  public:
    Answering() {
        connect(&timer_, &QTimer::timeout, this, [] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                (box->defaultButton() != nullptr ? box->defaultButton() : box->buttons().front())->click();
        });
        timer_.start(5);
    }

  private:
    QTimer timer_;
};

// Until what was posted has run.
void Await(test::RealProgram& real) {
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    } while (!real.program.pump.TakesInput(real.form));
}

void PrintWaits(const std::string& world) {
    test::RealProgram real(world);
    if (!StartUp(real.program.context)) return;
    CloseSplash(real.program.context);
    MainForm& form = real.form;
    LoopWatch watch(real.program.forms.frmProgress);
    const Answering answering;
    const auto time = [&](const char* name, Event event) {
        watch.Start();
        real.host.Post(event);
        Await(real);
        watch.NoteDone();
        QTest::qWait(100);  // for what is drawn afterwards
        watch.Print(name);
    };
    const auto click = [&](const char* name, Control& control) {
        time(name, {&form, &control, EventKind::Click});
    };
    Event drop{&form, nullptr, EventKind::DropFile};
    drop.path = JoinPath(world, "Plan/FlightPlans.txt");
    real.program.session.switches.ACCheck = false;
    time("open", drop);
    click("shuffle", form.cmdShuffle);
    test::ClickTab(form.tabMain, 2);
    QTest::qWait(100);
    form.opORSearch.Check();
    form.ckExportIFR.checked = form.ckExportVFR.checked = true;
    click("search", form.cmdPreview);
    std::printf("           %s\n", form.lblExPreview.caption.c_str());
    time("sort", {&form, &form.lvExPreview, EventKind::ClickColumn, 3});
    click("levels", form.mnuToolsCheckFL);
    click("times", form.mnuToolsCheckFT);
    click("save", form.mnuFileSave);
    click("undo", form.mnuToolsUndo);
    time("open again", drop);
}

struct Rows : RowSource {
    void AppendText(std::int32_t row, std::int32_t column, std::string& out) const override {
        const auto scattered = static_cast<std::uint32_t>(row) * 2654435761u;
        out.append(Concat("Text ", scattered >> (column % 8), " of a row"));
    }
};

void PrintListTimes(const std::string& world) {
    test::RealProgram real(world);
    if (!StartUp(real.program.context)) return;
    CloseSplash(real.program.context);
    test::ClickTab(real.form.tabMain, 2);
    QTest::qWait(100);
    ListView& list = real.form.lvExPreview;
    FormWindow& window = test::WindowOf(real.form);
    auto& table = static_cast<QTableView&>(test::WidgetOf(list));
    const auto time = [&](const char* name, const std::function<void()>& act) {
        QElapsedTimer passed;
        passed.start();
        act();
        real.host.CatchUp(window);
        QCoreApplication::processEvents();
        table.viewport()->repaint();
        std::printf("list of %d rows: %-14s %8.1f ms\n", list.Count(), name,
                    static_cast<double>(passed.nsecsElapsed()) / 1e6);
    };
    time("fill", [&] { list.ShowSource(std::make_shared<Rows>(), kRows); });
    time("sort", [&] { list.SortByColumn(3); });
    time("turn round", [&] { list.SortByColumn(3); });
    time("select all", [&] { table.selectAll(); });
    time("scroll to end", [&] { table.scrollToBottom(); });
    time("select one", [&] { test::ClickRow(list, kRows - 1); });
    time("clear", [&] { list.Clear(); });
}

int RunBench(int flights) {
    const QTemporaryDir folder;
    const std::string world = PathFromQString(folder.filePath("world"));
    if (!test::MakeSampleWorld(world, flights)) return 1;
    PrintStartTimes(PathToQString(world));
    PrintListTimes(world);
    PrintWaits(world);
    return 0;
}

}  // namespace
}  // namespace orlo::bench

int main(int count, char** words) {
    std::pmr::set_default_resource(&orlo::ListMemory());
    QApplication application(count, words);
    const QStringList arguments = QApplication::arguments();
    if (arguments.contains(orlo::bench::kEmptyMode)) return orlo::bench::ShowEmptyWindow();
    if (arguments.contains(orlo::bench::kProgramMode)) return orlo::bench::ShowProgram(arguments.last());
    return orlo::bench::RunBench(arguments.size() > 1 ? arguments[1].toInt() : 100'000);
}
