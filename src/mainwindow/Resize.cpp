#include "mainwindow/Resize.h"

#include "core/Number.h"
#include "forms/MainForm.h"

namespace orlo {
namespace {

// Where an edge stands when the window's size went from `before` to `now`.
double MovedEdge(std::int32_t edge, EdgeMode mode, EdgeUnit unit, std::int32_t before, std::int32_t now) {
    const double half = mode == EdgeMode::FollowsMiddle ? 2 : 1;
    if (unit == EdgeUnit::Offset) return edge + (now - before) / half;
    if (before == 0) return edge;
    return edge + edge * ((static_cast<double>(now) / before - 1) / half);
}

std::int32_t Rounded(double value) {
    return static_cast<std::int32_t>(RoundHalfEven(value));
}

}  // namespace

void cResize::Add(Control& control, EdgeModes modes, EdgeUnit unit) {
    const ControlBox& box = control.box;
    entries_.push_back(
        {&control, box.top, box.left, box.top + box.height, box.left + box.width, modes, unit});
}

void cResize::Resize(std::int32_t height, std::int32_t width) const {
    for (const Entry& entry : entries_) {
        ControlBox& box = entry.control->box;
        const EdgeModes& modes = entry.modes;
        if (modes.top != EdgeMode::Stays) {
            box.top = Rounded(MovedEdge(entry.top, modes.top, entry.unit, height_, height));
        }
        if (modes.left != EdgeMode::Stays) {
            box.left = Rounded(MovedEdge(entry.left, modes.left, entry.unit, width_, width));
        }
        if (modes.bottom != EdgeMode::Stays) {
            box.height =
                Rounded(MovedEdge(entry.bottom, modes.bottom, entry.unit, height_, height) - box.top);
        }
        if (modes.right != EdgeMode::Stays) {
            box.width = Rounded(MovedEdge(entry.right, modes.right, entry.unit, width_, width) - box.left);
        }
    }
}

void RegisterMainLayout(cResize& layout, MainForm& form, std::int32_t height, std::int32_t width) {
    layout.SetFormHeight(height);
    layout.SetFormWidth(width);
    const auto add = [&](int top, int left, int bottom, int right, std::initializer_list<Control*> controls) {
        const auto mode = [](int value) { return static_cast<EdgeMode>(value); };
        for (Control* control : controls) {
            layout.Add(*control, {mode(top), mode(left), mode(bottom), mode(right)}, EdgeUnit::Offset);
        }
    };
    add(0, 0, 1, 1,
        {&form.tabMain, &form.picShuffle, &form.tvShuffleAircraft, &form.picMove, &form.tvMoveAircrafts,
         &form.picExport, &form.lvExPreview, &form.picProject, &form.lvProject, &form.picTimetable,
         &form.lvTimetable});
    add(0, 0, 0, 1,
        {&form.cmShufflerView, &form.cmMoveView, &form.lblExClass, &form.cmExClass, &form.txtProjectFile,
         &form.txtProjectAC, &form.txtProjectDescription, &form.txtTTAirport});
    add(1, 0, 0, 0,
        {&form.lblStartNumber, &form.txtStartNumber, &form.cmdCalcStartNumber, &form.ckOverwriteTailNumber,
         &form.ckRemoveMinus, &form.ckCheckFL, &form.ckIFRVFR, &form.ckCheckVisitedAirports,
         &form.lblSource});
    add(1, 2, 1, 2,
        {&form.cmdShuffle, &form.cmdACTypeDat, &form.cmdProjectCompile, &form.cmdProjectMerge,
         &form.cmdProjectAdd, &form.cmdProjectDelete, &form.cmdTTShow, &form.cmdTTPrint, &form.cmdTTSave,
         &form.cmdTTStatistics});
    add(0, 0, 0, 0,
        {&form.lblMoveView, &form.lblMoveAircrafts, &form.lblExDeparture, &form.lblExContinent,
         &form.lblExAirline, &form.lblExPreview});
    add(1, 0, 0, 2, {&form.cmSource});
    add(1, 2, 0, 0, {&form.lblDest});
    add(1, 2, 0, 1, {&form.cmDest});
    add(1, 0, 1, 0,
        {&form.cmdMove, &form.cmdMovePercent, &form.cmdEditFlight, &form.cmdAddFlight,
         &form.cmdDeleteFlight});
    add(1, 1, 1, 1,
        {&form.cmdMoveSave, &form.cmdMoveLoad, &form.cmdMoveExecute, &form.cmdPreview, &form.cmdExport,
         &form.cmdExportRemainder, &form.cmdExportPrint});
    add(0, 0, 0, 2, {&form.txtExDeparture, &form.txtExContinent, &form.txtExAirline});
    add(0, 2, 0, 0, {&form.lblExLeg, &form.lblExCountry, &form.lblExportAircraft});
    add(0, 2, 0, 1, {&form.txtExLeg, &form.txtExCountry, &form.cmExportAircraft});
    add(0, 1, 0, 1,
        {&form.lblExZone, &form.cmExZone, &form.frIFRVFR, &form.frSearchType, &form.opANDSearch,
         &form.opORSearch, &form.cmdProjectFile, &form.cmdProjectAC, &form.lblTTZone, &form.cmTTZone});
    add(1, 0, 1, 1, {&form.frProject, &form.picProjectDummy});
}

}  // namespace orlo
