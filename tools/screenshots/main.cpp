// Takes pictures of every window of the desktop program on a sample world, for the manual and for the eye:
//
//     orlo-screenshots WORLD FOLDER [dark] [least]
//
// WORLD is what orlo-sample-world made; FOLDER is made where it is missing; `dark` takes dark colours, and
// `least` shows the main window as small as it gets. QT_SCALE_FACTOR scales everything.

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QMessageBox>
#include <QStyleFactory>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <algorithm>
#include <functional>
#include <iostream>
#include <set>
#include <utility>

#include "core/KeptFiles.h"
#include "core/Path.h"
#include "desktop/DesktopHost.h"
#include "desktop/EdgeStyle.h"
#include "desktop/FormWindow.h"
#include "desktop/MainLayout.h"
#include "editors/TextEditor.h"
#include "platform/SystemServices.h"
#include "projects/ProjectCommands.h"
#include "shell/FormFacts.h"
#include "shell/OpenPlan.h"
#include "shell/PaneFacts.h"
#include "shell/Program.h"
#include "shell/StartUp.h"
#include "shell/Tabs.h"

namespace orlo {
namespace {

constexpr int kSettle = 150;  // milliseconds
constexpr std::uint64_t kSeed = 1;

QPalette DarkPalette() {
    const QColor ground(0x2B, 0x2B, 0x2B);
    const QColor text(0xE6, 0xE6, 0xE6);
    const QColor faint(0x80, 0x80, 0x80);
    QPalette palette(QColor(0x3A, 0x3A, 0x3A), ground);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
    palette.setColor(QPalette::AlternateBase, ground);
    palette.setColor(QPalette::ToolTipBase, ground);
    palette.setColor(QPalette::Highlight, QColor(0x2A, 0x5C, 0x9E));
    palette.setColor(QPalette::HighlightedText, text);
    return palette;
}

class Photographer {
  public:
    Photographer(Program& program, DesktopHost& host, FileSystem& files, QString folder)
        : program_(program),
          form_(program.forms.frmMain),
          host_(host),
          files_(files),
          folder_(std::move(folder)) {
        QDir().mkpath(folder_);
        // Questions on the way are answered No.
        QObject::connect(&answering_, &QTimer::timeout, [] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->reject();
        });
    }

    // False where a form of the program was never taken.
    bool TakeAll(const std::string& plan, bool least) {
        Take(program_.forms.frmSplash, "splash");
        CloseSplash(program_.context);
        if (least) WindowOf(form_)->resize(form_.leastWidth, form_.leastHeight);
        TakePanes("start-");
        answering_.start(kSettle);
        OpenFlightplan(program_.context, plan);
        answering_.stop();
        OpenProject(program_.context,
                    JoinPath(ParentFolder(ParentFolder(plan)), "Project/Sample Project.orp"));
        Settle();
        TakePanes("");
        TakeMenus();
        TakeProgress();
        TakeMessage();
        TakeModal(form_.mnuHelpAbout, program_.forms.frmAbout, "about");
        TakePlanAircraft();
        ShowTab("EXPORT");
        TakeModal(form_.cmdEditFlight, program_.forms.frmFlightEdit, "editor");
        ShowTab("TIMETABLE");
        TakeModal(form_.mnuToolsAircraftEditor, program_.forms.frmFSAircraftEdit, "aircraft");
        TakeModal(form_.mnuToolsResizeGates, program_.forms.frmResizeGates, "gates");
        TakeTextEditor();
        TakeAirportTools();
        // Behind those, which read the scenery: so the stands are known.
        TakeModal(form_.cmdTTStatistics, program_.forms.frmTTStatistics, "statistics");
        TakeKeptFiles();
        TakeShares();
        return AllTaken();
    }

  private:
    static void Settle() { QTest::qWait(kSettle); }

    static FormWindow* WindowOf(const Form& form) {
        for (QWidget* widget : QApplication::allWidgets()) {
            auto* window = dynamic_cast<FormWindow*>(widget);
            if (window != nullptr && window->Shown() == &form) return window;
        }
        return nullptr;
    }

    void Save(QWidget* widget, const QString& name) const {
        const QString path = folder_ + "/" + name + ".png";
        if (widget == nullptr || !widget->grab().save(path))
            std::cerr << "orlo-screenshots: no picture " << path.toStdString() << '\n';
    }

    void Take(const Form& form, const QString& name) {
        Settle();
        Save(WindowOf(form), name);
        taken_.insert(&form);
    }

    bool AllTaken() const {
        bool all = true;
        for (const FormFacts& facts : AllForms()) {
            const Form& form = facts.form(program_.forms);
            if (taken_.contains(&form)) continue;
            std::cerr << "orlo-screenshots: no picture of " << form.name << '\n';
            all = false;
        }
        return all;
    }

    void ShowTab(std::string_view key) {
        form_.tabMain.selectedKey = key;
        ActivateTab(program_.context);
        host_.Post({&form_, &form_.tabMain, EventKind::SelectTab});
        Settle();
    }

    void Click(Control& control) {
        host_.Post({&control.form, &control, EventKind::Click});
        Settle();
    }

    // Some groups open, down to their aircraft.
    void OpenTree(const TreeView& of) {
        auto* tree = WindowOf(form_)->findChild<QTreeView*>(QString::fromStdString(of.name));
        tree->expand(tree->model()->index(0, 0));
        tree->expand(tree->model()->index(1, 0));
        tree->expand(tree->model()->index(1, 0, tree->model()->index(0, 0)));
    }

    void TakePanes(const QString& prefix) {
        for (const PaneFacts& pane : Panes()) {
            ShowTab(pane.key);
            if (form_.picShuffle.visible) OpenTree(form_.tvShuffleAircraft);
            if (form_.picMove.visible) ShowMove();
            if (form_.picExport.visible) SearchAll();
            if (form_.picTimetable.visible) ShowMonday();
            Take(form_,
                 prefix + QString::fromUtf8(pane.key.data(), static_cast<int>(pane.key.size())).toLower());
        }
    }

    void SearchAll() {
        form_.opORSearch.Check();
        form_.ckExportIFR.checked = true;
        Click(form_.cmdPreview);
        ListView& list = form_.lvExPreview;
        if (list.Count() < 3) return;
        list.current = list.PlaceAt(2);
        list.Select(list.current, true);
    }

    // Before a plan is open there is nothing to choose.
    void ShowMove() {
        TreeView& tree = form_.tvMoveAircrafts;
        OpenTree(tree);
        form_.cmSource.SelectText("EDDF");
        form_.cmDest.SelectText("EDDM");
        if (tree.roots.empty()) return;
        const std::int32_t group = tree.roots[std::min<std::size_t>(1, tree.roots.size() - 1)];
        tree.At(group).checked = true;
        host_.Post({&form_, &tree, EventKind::CheckNode, group});
        Settle();
    }

    void ShowMonday() {
        form_.txtTTAirport.text = "EDDF";
        form_.cmTTDay.SelectText("Monday");
        Click(form_.cmdTTShow);
    }

    void TakeMenus() {
        for (const Control* control : form_.Controls()) {
            if (control->kind != ControlKind::MenuEntry) continue;
            auto* menu = WindowOf(form_)->findChild<QMenu*>(QString::fromStdString(control->name) + "Menu");
            if (menu == nullptr || menu->sizeHint().isEmpty() || !control->enabled) continue;
            menu->popup(QPoint(0, 0));
            Settle();
            Save(menu, QString::fromStdString(control->name));
            menu->close();
        }
    }

    void TakeProgress() {
        host_.SetText("Reading flightplan...");
        host_.SetMax(100);
        host_.SetValue(40);
        host_.Show(&form_);
        Take(form_, "progress");
        taken_.insert(&program_.forms.frmProgress);  // stands inside the main window
        host_.Close();
    }

    void TakeMessage() {
        QTimer::singleShot(kSettle, [this] {
            Save(QApplication::activeModalWidget(), "message");
            answering_.start(kSettle);
        });
        host_.ShowMessage("Successfully saved the flightplan with its aircraft.", kMarkInformation, "Orlo",
                          &form_);
        answering_.stop();
    }

    // Before its picture is taken.
    template <typename Act>
    void WhenOpen(Act act) {
        QTimer::singleShot(2 * kSettle, act);
    }

    // When it has opened; then it is closed.
    void PhotographModal(Form& form, const QString& name, int settles = 4) {
        QTimer::singleShot(settles * kSettle, [this, &form, name] {
            Save(WindowOf(form), name);
            taken_.insert(&form);
            host_.Post({&form, nullptr, EventKind::Close});
        });
    }

    void TakeModal(Control& opens, Form& form, const QString& name, int settles = 4) {
        PhotographModal(form, name, settles);
        Click(opens);
        while (form.visible) Settle();
    }

    void TakeTextEditor() {
        TextEditForm& form = program_.forms.frmTextEdit;
        PhotographModal(form, "text");
        EditText(program_.context, "Edit Description",
                 "A regional jet with a hundred seats.\\n\\nCruise\\tFL350\\/Mach 0.74\\nRange\\t1,500 nm",
                 form_);
    }

    void TakeAirportTools() {
        DistanceForm& distance = program_.forms.frmDistance;
        WhenOpen([&distance, this] {
            for (const std::int32_t index : {1, 3, 2, 1}) {
                distance.cmDest.index = index;
                Click(distance.cmdDistance);
            }
        });
        TakeModal(form_.mnuToolsAirportDistance, distance, "distance", 8);
        AirportSearchForm& search = program_.forms.frmAirportSearch;
        const auto searchAll = [&search, this] {
            search.txtSearch.text = "united kingdom";
            search.ckAPOnly.checked = false;
            host_.Post({&search, &search.cmdSearch, EventKind::Click});
        };
        WhenOpen(searchAll);
        TakeModal(form_.mnuToolsAirportSearch, search, "airportsearch");
        // Its report, from the search opened once more.
        WhenOpen([&search, &searchAll, this] {
            searchAll();
            host_.Post({&search, &search.lvSearch, EventKind::DoubleClick, 1});
        });
        PhotographModal(program_.forms.frmAirportInfo, "airportinfo");
        PhotographModal(search, "airportsearch", 8);
        Click(form_.mnuToolsAirportSearch);
        while (search.visible) Settle();
    }

    // As after some weeks of work.
    void TakeKeptFiles() {
        const std::string plans = ParentFolder(program_.session.plan.FlightplanPath);
        const struct {
            std::int64_t when;
            const char* before;
            std::vector<std::string> paths;
        } kKept[] = {
            {1'795'080'127,
             "Save Flightplan",
             {JoinPath(plans, "FlightPlans.txt"), JoinPath(plans, "Aircraft.txt")}},
            {1'795'204'980, "Save Project", {program_.session.project.ProjectPath}},
            {1'795'631'684,
             "Decompile",
             {JoinPath(plans, "FlightPlans.txt"), JoinPath(plans, "Aircraft.txt"),
              JoinPath(plans, "Airports.txt")}},
        };
        const bool before = !ReadKeptEntries(files_, program_.session.StateFolder).empty();
        for (const auto& [when, reason, paths] : kKept) {
            if (!before) KeepFiles(files_, program_.session.StateFolder, when, reason, paths);
        }
        TakeModal(form_.mnuHelpKeptFiles, program_.forms.frmKeptFiles, "kept");
    }

    void TakeShares() {
        ShowTab("SHUFFLE");
        answering_.start(kSettle);
        Click(form_.cmdShuffle);
        answering_.stop();
        TakeModal(form_.mnuViewShares, program_.forms.frmShares, "shares");
    }

    // One of them isn't installed. The dialog puts a copy of the records back.
    void TakePlanAircraft() {
        std::vector<PlanAircraft>& aircraft = program_.session.plan.PlanAircrafts;
        const std::string title = std::exchange(aircraft[2].Title, "Sample Jet 150 - not installed");
        TakeModal(form_.mnuToolsEditPlanAircraft, program_.forms.frmAircraftEdit, "planaircraft");
        aircraft[2].Title = title;
    }

    Program& program_;
    MainForm& form_;
    DesktopHost& host_;
    FileSystem& files_;
    QString folder_;
    QTimer answering_;
    std::set<const Form*> taken_;
};

int Run(const QStringList& words) {
    const std::string world = QDir(words[1]).absolutePath().toStdString();
    SystemServices system(QDir::tempPath().toStdString() + "/orlo-screenshots.settings", world + "/Simulator",
                          kSeed);
    DesktopHost host;
    Services services = system.Behind(host);
    Program program(services, world + "/Program", world + "/kept");
    host.Attach(program.pump, program.forms.frmProgress);
    DesignMainForm(program.forms.frmMain);
    if (!StartUp(program.context)) return 1;
    const bool all = Photographer(program, host, *system.files, words[2])
                         .TakeAll(world + "/Plan/FlightPlans.txt", words.mid(3).contains("least"));
    host.Detach();
    return all ? 0 : 1;
}

}  // namespace
}  // namespace orlo

int main(int count, char** words) {
    QApplication application(count, words);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        std::cerr << "orlo-screenshots WORLD FOLDER [dark] [least]\n";
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    orlo::UseVisibleEdges();
    if (arguments.mid(3).contains("dark")) QApplication::setPalette(orlo::DarkPalette());
    return orlo::Run(arguments);
}
