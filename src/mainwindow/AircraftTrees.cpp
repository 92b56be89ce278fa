#include "mainwindow/AircraftTrees.h"

#include <optional>

#include "core/AircraftClassNames.h"
#include "core/Number.h"
#include "core/Text.h"
#include "mainwindow/TreeSelection.h"

namespace orlo {
namespace {

// Entries of cmShufflerView and, but for the last, of cmMoveView.
enum TreeViewMode : std::int32_t { kViewClasses = 0, kViewAirlines = 1, kViewManufacturers = 2 };

constexpr std::string_view kNoAirline = "# ORLO - No Airline";
constexpr std::string_view kNoManufacturer = "# ORLO - No Manufacturer";

struct TreeAircraft {
    std::string_view title;
    std::string_view airline;
    std::string_view manufacturer;
    std::string_view model;
    std::int32_t aircraftClass = kClassNone;
    std::int32_t fsIndex = -1;
};

// The group of that key, added under `parent` where there is none yet.
std::int32_t Group(TreeView& tree, std::int32_t parent, std::string_view key, std::string_view text) {
    const std::int32_t found = tree.Find(key);
    return found >= 0 ? found : tree.Add(parent, key, text, Colour::WindowText);
}

std::int32_t NamedGroup(TreeView& tree, std::string_view name, std::string_view withoutName) {
    if (name.empty()) return Group(tree, -1, withoutName, withoutName);
    return Group(tree, -1, Concat('#', UpperText(name)), name);
}

std::int32_t GroupOf(TreeView& tree, std::int32_t view, const TreeAircraft& aircraft) {
    switch (view) {
        case kViewAirlines:
            return NamedGroup(tree, aircraft.airline, kNoAirline);
        case kViewManufacturers: {
            const std::int32_t manufacturer = NamedGroup(tree, aircraft.manufacturer, kNoManufacturer);
            if (aircraft.model.empty()) return manufacturer;
            return Group(tree, manufacturer,
                         Concat('#', UpperText(aircraft.manufacturer), UpperText(aircraft.model)),
                         aircraft.model);
        }
        default: {
            const std::string_view name = AircraftClassName(aircraft.aircraftClass, "Unkown");
            return Group(tree, -1, Concat('#', name), name);
        }
    }
}

void AddToShuffleTree(MainForm& form, const TreeAircraft& aircraft) {
    TreeView& tree = form.tvShuffleAircraft;
    const std::int32_t group = GroupOf(tree, form.cmShufflerView.index, aircraft);
    const std::string text = aircraft.airline.empty() ? std::string(aircraft.title)
                                                      : Concat(aircraft.title, " (", aircraft.airline, ")");
    const std::int32_t leaf = tree.Add(group, AircraftNodeKey(aircraft.title), text, Colour::Blue);
    if (leaf >= 0) tree.At(leaf).tag = std::to_string(aircraft.fsIndex);
}

void AddToMoveTree(MainForm& form, const TreeAircraft& aircraft) {
    TreeView& tree = form.tvMoveAircrafts;
    const std::int32_t group = GroupOf(tree, form.cmMoveView.index, aircraft);
    tree.Add(group, AircraftNodeKey(aircraft.title), aircraft.title, Colour::Red);
}

void AddInstalledAircraft(MainForm& form, const Session& session, SkipTree skipShuffleTree,
                          SkipTree skipMoveTree) {
    for (std::size_t i = 0; i < session.fleet.FSAircrafts.size(); ++i) {
        const FSAircraft& aircraft = session.fleet.FSAircrafts[i];
        if (!ShowsInTrees(aircraft.Title)) continue;
        AddAircraftToTrees(form, session, aircraft.Title, aircraft.Airline, aircraft.UIManufacturer,
                           aircraft.UIType, static_cast<std::int32_t>(i), skipShuffleTree, skipMoveTree);
    }
}

void MarkMoveTree(TreeView& tree, const Session& session) {
    for (const PlanAircraft& aircraft : session.plan.PlanAircrafts) {
        const std::int32_t leaf = tree.Find(AircraftNodeKey(aircraft.Title));
        if (leaf < 0) continue;
        TreeNode& node = tree.At(leaf);
        node.colour = Colour::Black;
        if (node.tag.empty()) node.tag.push_back(',');
        node.tag.append(aircraft.ACNumber).append(",");
    }
    ++tree.stateRevision;
}

void CheckPlanAircraft(MainForm& form, const Session& session) {
    TreeView& tree = form.tvShuffleAircraft;
    std::vector<std::int32_t> leaves;
    for (const PlanAircraft& aircraft : session.plan.PlanAircrafts) {
        const std::int32_t leaf = tree.Find(AircraftNodeKey(aircraft.Title));
        if (leaf >= 0) leaves.push_back(leaf);
    }
    CheckNodes(form, session, tree, leaves);
}

// The place in FSAircrafts in the tag of a leaf of tvShuffleAircraft; nothing for a group.
std::optional<std::int32_t> PlaceOf(const TreeNode& node, const Session& session) {
    const auto place = ParseWholeNumber(node.tag);
    return place && *place >= 0 && *place < session.fleet.FSAircraftCount() ? place : std::nullopt;
}

std::vector<std::string> CheckedKeys(const TreeView& tree, bool blueOnly) {
    std::vector<std::string> keys;
    for (const TreeNode& node : tree.nodes) {
        if (node.checked && (!blueOnly || node.colour == Colour::Blue)) keys.push_back(node.key);
    }
    return keys;
}

void CheckKeys(MainForm& form, const Session& session, TreeView& tree, const std::vector<std::string>& keys) {
    std::vector<std::int32_t> nodes;
    for (const std::string& key : keys) {
        const std::int32_t node = tree.Find(key);
        if (node >= 0) nodes.push_back(node);
    }
    CheckNodes(form, session, tree, nodes);
}

}  // namespace

std::string AircraftNodeKey(std::string_view title) {
    return Concat(UpperText(title), "##");
}

bool ShowsInTrees(std::string_view title) {
    return title.empty() || title.front() != '~';
}

void AddAircraftToTrees(MainForm& form, const Session& session, std::string_view title,
                        std::string_view airline, std::string_view manufacturer, std::string_view model,
                        std::int32_t fsIndex, SkipTree skipShuffleTree, SkipTree skipMoveTree) {
    TreeAircraft aircraft;
    aircraft.title = TrimBlanks(title);
    aircraft.airline = TrimBlanks(airline);
    aircraft.manufacturer = TrimBlanks(manufacturer);
    aircraft.model = TrimBlanks(model);
    aircraft.fsIndex = fsIndex;
    if (fsIndex >= 0 && fsIndex < session.fleet.FSAircraftCount()) {
        aircraft.aircraftClass = session.fleet.FSAircrafts[static_cast<std::size_t>(fsIndex)].Class;
    }
    if (skipShuffleTree == SkipTree::No) AddToShuffleTree(form, aircraft);
    if (skipMoveTree == SkipTree::No) AddToMoveTree(form, aircraft);
}

void FillAircraftTrees(MainForm& form, const Session& session) {
    for (TreeView* tree : {&form.tvShuffleAircraft, &form.tvMoveAircrafts}) {
        tree->Clear();
        tree->Reserve(session.fleet.FSAircrafts.size());
    }
    AddInstalledAircraft(form, session, SkipTree::No, SkipTree::No);
    MarkPlanAircraft(form, session);
    form.tvShuffleAircraft.SortChildren();
    form.tvMoveAircrafts.SortChildren();
}

void MarkPlanAircraft(MainForm& form, const Session& session) {
    MarkMoveTree(form.tvMoveAircrafts, session);
    CheckPlanAircraft(form, session);
}

bool ViewChanges(const ComboBox& view, const Session& session) {
    return view.tag != std::to_string(view.index) && session.plan.FlightCount() != 0;
}

void ChangeShufflerView(MainForm& form, const Session& session) {
    TreeView& tree = form.tvShuffleAircraft;
    if (ViewChanges(form.cmShufflerView, session)) {
        const std::vector<std::string> keys = CheckedKeys(tree, true);
        tree.Clear();
        tree.Reserve(session.fleet.FSAircrafts.size());
        AddInstalledAircraft(form, session, SkipTree::No, SkipTree::Yes);
        CheckKeys(form, session, tree, keys);
        tree.SortChildren();
        tree.visible = true;
    }
    form.cmShufflerView.tag = std::to_string(form.cmShufflerView.index);
}

void ChangeMoveView(MainForm& form, const Session& session) {
    TreeView& tree = form.tvMoveAircrafts;
    if (ViewChanges(form.cmMoveView, session)) {
        const std::vector<std::string> keys = CheckedKeys(tree, false);
        tree.Clear();
        tree.Reserve(session.fleet.FSAircrafts.size());
        AddInstalledAircraft(form, session, SkipTree::Yes, SkipTree::No);
        MarkMoveTree(tree, session);
        CheckKeys(form, session, tree, keys);
        tree.SortChildren();
        tree.visible = true;
    }
    form.cmMoveView.tag = std::to_string(form.cmMoveView.index);
}

std::vector<CheckedAircraft> CheckedShuffleAircraft(const MainForm& form, const Session& session) {
    std::vector<CheckedAircraft> checked;
    for (const TreeNode& node : form.tvShuffleAircraft.nodes) {
        if (!node.checked || node.colour != Colour::Blue) continue;
        const auto place = PlaceOf(node, session);
        if (!place) continue;
        const std::string_view text = node.text;
        checked.push_back({*place, std::string(TrimBlanks(text.substr(0, text.rfind('('))))});
    }
    return checked;
}

std::string TreeNodeTip(const MainForm& form, const Session& session, const TreeView& tree,
                        std::int32_t node) {
    if (node < 0 || node >= tree.Count()) return {};
    const TreeNode& at = tree.At(node);
    if (&tree == &form.tvMoveAircrafts) {
        if (!at.tag.empty()) return Concat("Aircraft ", ReplaceAll(at.tag, ",", "/"));
        return at.colour == Colour::Red ? "Aircraft not used" : "";
    }
    const auto place = PlaceOf(at, session);
    return place ? session.fleet.FSAircrafts[static_cast<std::size_t>(*place)].Problem : "";
}

}  // namespace orlo
