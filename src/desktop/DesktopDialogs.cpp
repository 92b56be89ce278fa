// The dialogs of the desktop front end. While one is open it is the topmost modal window for the pump too.

#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QUrl>
#include <algorithm>

#include "core/Application.h"
#include "core/Text.h"
#include "desktop/DesktopHost.h"
#include "desktop/FormWindow.h"
#include "desktop/ScreenText.h"
#include "shell/EventPump.h"

namespace orlo {

class DesktopHost::DialogRound {
  public:
    explicit DialogRound(DesktopHost& host) : host_(host) {
        ++host_.dialogsShown_;
        if (host_.pump_ == nullptr) return;
        std::vector<Form*>& modal = host_.pump_->Windows().modal;
        modal.insert(modal.begin(), &host_.dialogForm_);
        host_.ScheduleDraw();
    }
    ~DialogRound() {
        if (host_.pump_ == nullptr) return;
        std::vector<Form*>& modal = host_.pump_->Windows().modal;
        const auto found = std::find(modal.begin(), modal.end(), &host_.dialogForm_);
        if (found != modal.end()) modal.erase(found);
    }
    DialogRound(const DialogRound&) = delete;
    DialogRound& operator=(const DialogRound&) = delete;

  private:
    DesktopHost& host_;
};

namespace {

QMessageBox::StandardButtons ButtonsOf(int flags) {
    switch (flags & 0x0F) {
        case kButtonsYesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case kButtonsYesNo:
            return QMessageBox::Yes | QMessageBox::No;
        default:
            return QMessageBox::Ok;
    }
}

QMessageBox::Icon MarkOf(int flags) {
    switch (flags & 0x70) {
        case kMarkCritical:
            return QMessageBox::Critical;
        case kMarkQuestion:
            return QMessageBox::Question;
        case kMarkExclamation:
            return QMessageBox::Warning;
        case kMarkInformation:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

MessageAnswer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Ok:
            return MessageAnswer::Ok;
        case QMessageBox::Yes:
            return MessageAnswer::Yes;
        case QMessageBox::No:
            return MessageAnswer::No;
        default:
            return MessageAnswer::Cancel;
    }
}

// "Name|Pattern;Pattern|..." as the toolkit writes it.
QStringList FiltersOf(const std::string& filter) {
    QStringList filters;
    const std::vector<std::string_view> parts = SplitText(filter, '|');
    for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
        const std::string name(BeforeFirst(parts[i], " ("));
        filters << ToQString(Concat(name, " (", ReplaceAll(parts[i + 1], ";", " "), ")"));
    }
    return filters;
}

void SetUp(QFileDialog& shown, const FileDialog& dialog) {
    const QStringList filters = FiltersOf(dialog.filter);
    if (!filters.isEmpty()) {
        shown.setNameFilters(filters);
        shown.selectNameFilter(filters[std::clamp<qsizetype>(dialog.filterIndex - 1, 0, filters.size() - 1)]);
    }
    if (!dialog.startFolder.empty()) shown.setDirectory(PathToQString(dialog.startFolder));
    if (!dialog.startFile.empty()) shown.selectFile(PathToQString(dialog.startFile));
    shown.setDefaultSuffix(ToQString(dialog.defaultExtension));
}

std::string ChosenPath(QFileDialog& shown) {
    if (shown.exec() != QDialog::Accepted || shown.selectedFiles().isEmpty()) return {};
    return PathFromQString(shown.selectedFiles().front());
}

}  // namespace

MessageAnswer DesktopHost::ShowMessage(std::string_view text, int flags, std::string_view title,
                                       Form* owner) {
    if (TrimBlanks(text).empty()) return MessageAnswer::None;
    const DialogRound round(*this);
    QMessageBox box(MarkOf(flags), ToQString(title), ToQString(text), ButtonsOf(flags), OwnerWindow(owner));
    box.setTextFormat(Qt::PlainText);
    if ((flags & kDefaultSecondButton) != 0) box.setDefaultButton(QMessageBox::No);
    return AnswerOf(box.exec());
}

void DesktopHost::ShowNotBuilt(std::string_view controlName) {
    ShowMessage(Concat(controlName, " is not built yet"), kMarkInformation, kApplicationTitle, nullptr);
}

std::string DesktopHost::ShowOpenDialog(const FileDialog& dialog) {
    const DialogRound round(*this);
    QFileDialog shown(OwnerWindow(nullptr), ToQString(dialog.title));
    shown.setAcceptMode(QFileDialog::AcceptOpen);
    shown.setFileMode(dialog.fileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    SetUp(shown, dialog);
    return ChosenPath(shown);
}

std::string DesktopHost::ShowSaveDialog(const FileDialog& dialog) {
    const DialogRound round(*this);
    QFileDialog shown(OwnerWindow(nullptr), ToQString(dialog.title));
    shown.setAcceptMode(QFileDialog::AcceptSave);
    shown.setFileMode(QFileDialog::AnyFile);
    shown.setOption(QFileDialog::DontConfirmOverwrite, !dialog.overwritePrompt);
    SetUp(shown, dialog);
    return ChosenPath(shown);
}

std::optional<std::string> DesktopHost::InputBox(std::string_view prompt, std::string_view title,
                                                 std::string_view defaultText) {
    const DialogRound round(*this);
    QInputDialog shown(OwnerWindow(nullptr));
    shown.setWindowTitle(ToQString(title));
    shown.setLabelText(ToQString(prompt));
    shown.setTextValue(ToQString(defaultText));
    if (shown.exec() != QDialog::Accepted) return std::nullopt;
    return FromQString(shown.textValue());
}

bool DesktopHost::ShowPrintDialog(std::string_view) {
    ShowNotBuilt("Printing");
    return false;
}

void DesktopHost::Print(std::string_view) {}

bool DesktopHost::OpenDocument(const std::string& path, const std::string&) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(PathToQString(path)));
}

}  // namespace orlo
