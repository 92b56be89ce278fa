#include "desktop/MainLayout.h"

#include <QApplication>
#include <QFontMetrics>
#include <QScreen>
#include <algorithm>

#include "desktop/PaneDesign.h"
#include "shell/StartUp.h"

namespace orlo {
namespace {

constexpr int kLeastListRows = 4;
constexpr int kOpeningCharacters = 140;  // of average width
constexpr int kOpeningLines = 42;
constexpr int kTitleBarLines = 3;  // left free on a small screen

constexpr std::string_view kSampleCodes = "KLAX,KSFO";
constexpr std::string_view kSampleTime = "00:00:000";
constexpr std::string_view kSampleNumber = "000000";
constexpr std::string_view kSampleZone = "GMT +00:00";
constexpr std::string_view kSamplePath = "FlightPlans.txt";

// Buttons of one width.
std::vector<RowItem> Buttons(std::initializer_list<Button*> buttons) {
    int width = 0;
    for (const Button* button : buttons) width = std::max(width, NaturalSize(*button).width());
    std::vector<RowItem> row;
    for (Button* button : buttons) row.push_back(Fixed(*button, width));
    return row;
}

std::vector<RowItem> Centred(std::initializer_list<Button*> buttons) {
    std::vector<RowItem> row = Buttons(buttons);
    for (RowItem& item : row) ++item.width;  // kBottomMiddle may round a pixel away
    row.insert(row.begin(), Space());
    row.push_back(Space());
    return row;
}

std::vector<RowItem> AtBothEdges(std::initializer_list<Button*> left, std::initializer_list<Button*> right) {
    std::vector<RowItem> row = Buttons(left);
    row.push_back(Space(3 * SpaceOfStyle().across));
    for (const RowItem& item : Buttons(right)) row.push_back(item);
    return row;
}

struct PaneSize {
    QSize now;           // that the pane is laid out for
    int leastWidth = 0;  // that it will have
};

PaneDesign DesignOf(const PaneSize& pane) {
    return PaneDesign(pane.now, SpaceOfStyle().edges);
}

QSize DesignShuffle(MainForm& form, const PaneSize& size) {
    PaneDesign pane = DesignOf(size);
    pane.FromTop(
        {Fixed(form.lblShufflerView), Wide(form.cmShufflerView, NaturalSize(form.cmShufflerView).width())});
    pane.LabelFromTop(form.lblShuffleAircraft, size.leastWidth);

    const int first = WidestOf({&form.ckOverwriteTailNumber, &form.ckCheckFL, &form.ckCheckVisitedAirports});
    pane.FromBottom(Centred({&form.cmdShuffle, &form.cmdACTypeDat}));
    pane.FromBottom({Fixed(form.ckCheckVisitedAirports, first)});
    pane.FromBottom({Fixed(form.ckCheckFL, first), Fixed(form.ckIFRVFR)});
    pane.FromBottom({Fixed(form.ckOverwriteTailNumber, first), Fixed(form.ckRemoveMinus)});
    pane.FromBottom({Fixed(form.lblStartNumber), Fixed(form.txtStartNumber, FieldWidth(kSampleNumber)),
                     Fixed(form.cmdCalcStartNumber)});
    pane.Fill(form.tvShuffleAircraft, ListHeight(kLeastListRows));
    return pane.Least();
}

QSize DesignMove(MainForm& form, const PaneSize& size) {
    PaneDesign pane = DesignOf(size);
    pane.FromTop({Fixed(form.lblMoveView), Wide(form.cmMoveView, NaturalSize(form.cmMoveView).width())});
    pane.LabelFromTop(form.lblMoveAircrafts, size.leastWidth);

    pane.FromBottom(AtBothEdges({&form.cmdMove, &form.cmdMovePercent},
                                {&form.cmdMoveSave, &form.cmdMoveLoad, &form.cmdMoveExecute}));
    const int field = FieldWidth(kSampleCodes);
    pane.FromBottom({Fixed(form.lblSource), Wide(form.cmSource, field), Gap(2 * SpaceOfStyle().across),
                     Fixed(form.lblDest), Wide(form.cmDest, field)});
    pane.Fill(form.tvMoveAircrafts, ListHeight(kLeastListRows));
    return pane.Least();
}

// Places two controls of a frame below each other. Gives the size of the frame with that caption.
QSize DesignPair(Control& upper, Control& lower, const std::string& caption) {
    PaneDesign inside(QSize(0, 0), FrameMargins());
    inside.FromTop({Fixed(upper)});
    inside.FromTop({Fixed(lower)});
    const int title = QFontMetrics(QApplication::font()).horizontalAdvance(QString::fromStdString(caption));
    const QMargins edges = FrameMargins();
    return inside.Least().expandedTo(QSize(title + edges.left() + edges.right(), 0));
}

void CountFrom(const Control& frame, Control& control) {
    control.box.left += frame.box.left;
    control.box.top += frame.box.top;
}

QSize DesignExport(MainForm& form, const PaneSize& size) {
    PaneDesign pane = DesignOf(size);
    const LayoutSpace space = SpaceOfStyle();
    const QSize rules = DesignPair(form.ckExportIFR, form.ckExportVFR, form.frIFRVFR.caption);
    const QSize search = DesignPair(form.opANDSearch, form.opORSearch, form.frSearchType.caption);
    const QSize label = NaturalSize(form.lblExZone);
    const int zone = FieldWidth(kSampleZone) + space.edges.right() + label.height();
    const int column =
        std::max(rules.width() + space.across + search.width(), label.width() + space.across + zone);
    const int inset = column + 3 * space.across;

    const int top = pane.Top();
    const int first =
        WidestOf({&form.lblExDeparture, &form.lblExContinent, &form.lblExAirline, &form.lblExClass});
    const int second = WidestOf({&form.lblExLeg, &form.lblExCountry, &form.lblExportAircraft});
    const int field = FieldWidth(kSampleCodes);
    const auto fields = [&](Control& label1, Control& field1, Control& label2, Control& field2) {
        pane.FromTop({Fixed(label1, first), Wide(field1, field), Gap(2 * space.across), Fixed(label2, second),
                      Wide(field2, field)},
                     inset);
    };
    fields(form.lblExDeparture, form.txtExDeparture, form.lblExLeg, form.txtExLeg);
    fields(form.lblExContinent, form.txtExContinent, form.lblExCountry, form.txtExCountry);
    fields(form.lblExAirline, form.txtExAirline, form.lblExportAircraft, form.cmExportAircraft);
    pane.FromTop({Fixed(form.lblExClass, first), Wide(form.cmExClass, field)}, inset);
    // The right edge follows the window; at the least width the box is still as wide as the text.
    form.lblExClass.box.width += std::max(0, size.now.width() - size.leastWidth);
    const int below = pane.Top();

    pane.SetTop(top);
    pane.FromTop(
        {Space(), Fixed(form.lblExZone), Fixed(form.cmExZone, column - space.across - label.width())});
    const int searchWidth = column - space.across - rules.width();
    pane.FromTop({Space(), Fixed(form.frIFRVFR, rules),
                  Fixed(form.frSearchType, QSize(searchWidth, search.height()))});
    CountFrom(form.frSearchType, form.opANDSearch);
    CountFrom(form.frSearchType, form.opORSearch);

    pane.SetTop(std::max(below, pane.Top()));
    pane.LabelFromTop(form.lblExPreview, size.leastWidth);
    pane.FromBottom(
        AtBothEdges({&form.cmdEditFlight, &form.cmdAddFlight, &form.cmdDeleteFlight},
                    {&form.cmdPreview, &form.cmdExport, &form.cmdExportRemainder, &form.cmdExportPrint}));
    pane.Fill(form.lvExPreview, ListHeight(kLeastListRows));
    return pane.Least();
}

QSize DesignTimetable(MainForm& form, const PaneSize& size) {
    PaneDesign pane = DesignOf(size);
    const LayoutSpace space = SpaceOfStyle();
    const int zone = std::max(NaturalSize(form.cmTTZone).width(), NaturalSize(form.lblTTZone).width());
    pane.LabelsFromTop({Fixed(form.lblTTAirport), Space(space.across), Fixed(form.lblTTZone, zone)});
    pane.FromTop({Wide(form.txtTTAirport, FieldWidth(kSampleCodes)), Fixed(form.cmTTZone, zone)});

    const int day = NaturalSize(form.cmTTDay).width();
    const auto over = [](Control& label, std::string_view sample) {
        return std::max(NaturalSize(label).width(), FieldWidth(sample));
    };
    const int start = over(form.lblTTStart, kSampleTime);
    const int end = over(form.lblTTEnd, kSampleTime);
    const int percent = over(form.lblTTPercent, kSampleNumber);
    const int direction = WidestOf({&form.ckTTArrival, &form.ckTTDeparture});
    const int rules = WidestOf({&form.ckTTIFR, &form.ckTTVFR});
    const int apart = 2 * space.across;
    // The check boxes stand two by two beside the fields.
    pane.LabelsFromTop({Fixed(form.lblTTDay, day), Fixed(form.lblTTStart, start), Fixed(form.lblTTEnd, end),
                        Fixed(form.lblTTPercent, percent), Fixed(form.ckTTArrival, direction),
                        Fixed(form.ckTTIFR, rules)});
    pane.FromTop({Fixed(form.cmTTDay, day), Fixed(form.txtTTStart, start), Fixed(form.txtTTEnd, end),
                  Fixed(form.txtTTPercent, percent), Fixed(form.ckTTDeparture, direction),
                  Fixed(form.ckTTVFR, rules)});
    for (Control* box : {&form.ckTTArrival, &form.ckTTDeparture, &form.ckTTIFR, &form.ckTTVFR})
        box->box.left += apart;

    pane.LabelFromTop(form.lblTTPreview, size.leastWidth);
    pane.FromBottom(Centred({&form.cmdTTShow, &form.cmdTTPrint, &form.cmdTTSave, &form.cmdTTStatistics}));
    pane.Fill(form.lvTimetable, ListHeight(kLeastListRows));
    return pane.Least() + QSize(apart, 0);
}

// Places the fields of a project's entry in a frame of this width. Gives the least size of the frame.
QSize DesignEntry(MainForm& form, int width) {
    PaneDesign frame(QSize(width, 0), FrameMargins());
    const int labels = WidestOf({&form.lblProjectDescription, &form.lblProjectFile, &form.lblProjectAC});
    const int field = FieldWidth(kSamplePath);
    frame.FromTop({Fixed(form.lblProjectDescription, labels), Wide(form.txtProjectDescription, field)});
    frame.FromTop(
        {Fixed(form.lblProjectFile, labels), Wide(form.txtProjectFile, field), Fixed(form.cmdProjectFile)});
    frame.FromTop(
        {Fixed(form.lblProjectAC, labels), Wide(form.txtProjectAC, field), Fixed(form.cmdProjectAC)});
    return frame.Least();
}

QSize DesignProject(MainForm& form, const PaneSize& size) {
    PaneDesign pane = DesignOf(size);
    pane.FromBottom(Centred(
        {&form.cmdProjectAdd, &form.cmdProjectDelete, &form.cmdProjectMerge, &form.cmdProjectCompile}));
    const QMargins edges = SpaceOfStyle().edges;
    const QSize entry = DesignEntry(form, size.now.width() - edges.left() - edges.right());
    RowItem frame = Fixed(form.frProject, entry);
    frame.wide = true;
    pane.FromBottom({frame});
    form.picProjectDummy.box = form.frProject.box;
    pane.Fill(form.lvProject, ListHeight(kLeastListRows));
    return pane.Least();
}

// Places all controls for one inner size. Gives the least inner size.
QSize DesignAll(MainForm& form, QSize inner, int leastWidth) {
    const int menu = MenuBarHeight();
    const QSize tabs = NaturalSize(form.tabMain);
    const int status = NaturalSize(form.sbMain).height();
    const int paneTop = menu + tabs.height();
    const PaneSize pane{inner - QSize(0, paneTop + status), leastWidth};

    form.tabMain.box = {0, menu, inner.width(), inner.height() - menu - status};
    form.sbMain.box = {0, inner.height() - status, inner.width(), status};
    for (Picture* shown :
         {&form.picShuffle, &form.picMove, &form.picExport, &form.picTimetable, &form.picProject}) {
        shown->box = {0, paneTop, pane.now.width(), pane.now.height()};
    }
    QSize least(tabs.width(), 0);
    for (const auto design : {DesignShuffle, DesignMove, DesignExport, DesignTimetable, DesignProject}) {
        least = least.expandedTo(design(form, pane));
    }
    return least + QSize(0, paneTop + status);
}

QSize OpeningSize(QSize least) {
    const QFontMetrics metrics(QApplication::font());
    QSize size(kOpeningCharacters * metrics.averageCharWidth(), kOpeningLines * metrics.lineSpacing());
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QSize room = screen->availableGeometry().size();
        size = size.boundedTo(room - QSize(0, kTitleBarLines * metrics.lineSpacing()));
    }
    return size.expandedTo(least);
}

}  // namespace

void DesignMainForm(MainForm& form) {
    const QSize needed = DesignAll(form, QSize(0, 0), 0);
    const QSize least = needed.expandedTo({kMainWindowLimits.minimumWidth, kMainWindowLimits.minimumHeight});
    const QSize inner = OpeningSize(least);
    DesignAll(form, inner, least.width());
    form.leastWidth = least.width();
    form.leastHeight = least.height();
    form.innerWidth = inner.width();
    form.innerHeight = inner.height();
    QRect place(QPoint(), inner);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        place.moveCenter(screen->availableGeometry().center());
    form.box = {place.x(), place.y(), place.width(), place.height()};
}

}  // namespace orlo
