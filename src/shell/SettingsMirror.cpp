#include "shell/SettingsMirror.h"

#include "core/Number.h"
#include "core/Settings.h"
#include "mainwindow/RecentLists.h"

namespace orlo {
namespace {

constexpr std::string_view kWindowSection = "Settings";
constexpr std::int32_t kNoPlaceStored = -1;

std::string ReadText(Context& context, const SettingRow& row) {
    return OwnSettings(context.services.userSettings, row.section).Text(row.key, row.defaultText);
}

bool ReadSwitch(Context& context, const SettingRow& row) {
    return OwnSettings(context.services.userSettings, row.section)
        .Boolean(row.key, row.defaultText == "True");
}

// Writes a value of each kind of mirror.
class RowWriter {
  public:
    RowWriter(Context& context, const SettingRow& row)
        : session_(context.session),
          form_(context.forms.frmMain),
          settings_(context.services.userSettings, row.section),
          key_(row.key) {}

    void operator()(const MenuSwitch& mirror) {
        settings_.SaveBoolean(key_, session_.switches.*mirror.value);
    }
    void operator()(const ShuffleOption& mirror) { settings_.SaveBoolean(key_, (form_.*mirror.box).checked); }
    void operator()(const EditorSwitch& mirror) {
        settings_.SaveBoolean(key_, session_.switches.*mirror.value);
    }
    void operator()(const LimitChoice& mirror) {
        settings_.SaveNumber(key_, session_.switches.*mirror.value);
    }
    void operator()(const NumberField& mirror) {
        settings_.SaveNumber(key_, session_.switches.*mirror.value);
    }
    void operator()(const ZoneChoice& mirror) { settings_.Save(key_, session_.switches.*mirror.value); }
    void operator()(const FolderChoice& mirror) {
        const std::string& path = session_.*mirror.path;
        if (!path.empty()) settings_.Save(key_, path);
    }
    void operator()(const RecentList& mirror) {
        int place = 0;
        for (const std::string& path : session_.*mirror.paths) {
            settings_.Save(std::to_string(++place), path);
        }
    }

  private:
    const Session& session_;
    const MainForm& form_;
    OwnSettings settings_;
    std::string_view key_;
};

void WriteWindowPlace(Context& context) {
    if (!context.services.windows.KeepsWindowPlace()) return;
    OwnSettings settings(context.services.userSettings, kWindowSection);
    const MainForm& form = context.forms.frmMain;
    settings.SaveNumber("MainState", static_cast<std::int32_t>(form.windowState));
    if (form.windowState != WindowState::Normal) return;
    settings.SaveNumber("MainLeft", form.box.left);
    settings.SaveNumber("MainTop", form.box.top);
    settings.SaveNumber("MainWidth", form.box.width);
    settings.SaveNumber("MainHeight", form.box.height);
}

}  // namespace

void SetLimit(Context& context, const LimitChoice& choice, std::int32_t value) {
    const TurnAroundLimit* found = &choice.limits.front();
    for (const TurnAroundLimit& limit : choice.limits) {
        if (limit.value == value) found = &limit;
    }
    for (const TurnAroundLimit& limit : choice.limits) {
        (context.forms.frmMain.*limit.entry).checked = &limit == found;
    }
    context.session.switches.*choice.value = found->value;
}

void ReadSwitches(Context& context) {
    Switches& switches = context.session.switches;
    MainForm& form = context.forms.frmMain;
    ForEachSetting<MenuSwitch>([&](const SettingRow& row, const MenuSwitch& mirror) {
        (form.*mirror.entry).checked = switches.*mirror.value = ReadSwitch(context, row);
    });
    ForEachSetting<ShuffleOption>([&](const SettingRow& row, const ShuffleOption& mirror) {
        (form.*mirror.box).checked = ReadSwitch(context, row);
    });
    // A value that can't be read turns the limit off.
    ForEachSetting<LimitChoice>([&](const SettingRow& row, const LimitChoice& mirror) {
        const auto value = ParseWholeNumber(ReadText(context, row));
        SetLimit(context, mirror, value.value_or(kNoTurnAroundLimit));
    });
    ForEachSetting<EditorSwitch>([&](const SettingRow& row, const EditorSwitch& mirror) {
        switches.*mirror.value = ReadSwitch(context, row);
    });
    ForEachSetting<NumberField>([&](const SettingRow& row, const NumberField& mirror) {
        TextBox& field = form.*mirror.field;
        const auto value = ParseWholeNumber(ReadText(context, row));
        switches.*mirror.value = value ? *value : ParseWholeNumber(row.defaultText).value_or(0);
        field.text = std::to_string(switches.*mirror.value);
        field.selectAllRequest = true;
    });
}

void ReadRecentLists(Context& context) {
    ForEachSetting<RecentList>([&](const SettingRow& row, const RecentList& mirror) {
        const OwnSettings settings(context.services.userSettings, row.section);
        int place = 0;
        for (std::string& path : context.session.*mirror.paths) {
            path = settings.Text(std::to_string(++place), "");
        }
    });
    RebuildRecentMenus(context);
}

void ReadSimulatorFolder(Context& context) {
    ForEachSetting<FolderChoice>([&](const SettingRow& row, const FolderChoice& mirror) {
        context.session.*mirror.path = ReadText(context, row);
    });
}

void ReadZones(Context& context) {
    ForEachSetting<ZoneChoice>([&](const SettingRow& row, const ZoneChoice& mirror) {
        std::string& zone = context.session.switches.*mirror.value;
        zone = ReadText(context, row);
        if (mirror.combo == nullptr) return;
        // What the list doesn't have can't be shown, so it doesn't hold.
        ComboBox& combo = context.forms.frmMain.*mirror.combo;
        if (!combo.SelectText(zone)) zone = combo.Text();
    });
}

void ReadWindowPlace(Context& context) {
    if (!context.services.windows.KeepsWindowPlace()) return;
    MainForm& form = context.forms.frmMain;
    const OwnSettings settings(context.services.userSettings, kWindowSection);
    const bool maximised =
        settings.Number("MainState", 0) == static_cast<std::int32_t>(WindowState::Maximised);
    form.windowState = maximised ? WindowState::Maximised : WindowState::Normal;
    form.centreRequest = settings.Number("MainHeight", kNoPlaceStored) == kNoPlaceStored;
    if (form.centreRequest) return;
    // What is missing in a stored place is as the window has it now.
    form.box.left = settings.Number("MainLeft", form.box.left);
    form.box.top = settings.Number("MainTop", form.box.top);
    form.box.width = settings.Number("MainWidth", form.box.width);
    form.box.height = settings.Number("MainHeight", form.box.height);
}

void WriteSettings(Context& context) {
    WriteWindowPlace(context);
    for (const SettingRow& row : SettingRows()) std::visit(RowWriter(context, row), row.mirror);
    context.services.userSettings.Flush();
}

}  // namespace orlo
