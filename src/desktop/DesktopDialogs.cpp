// The dialogs of the desktop front end. While one is open, `dialogForm_` is the pump's topmost modal form, so
// that the user can use no other form.

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

#include "core/Application.h"
#include "core/Path.h"
#include "core/Text.h"
#include "desktop/DesktopHost.h"
#include "desktop/FormWindow.h"
#include "desktop/ScreenPlace.h"
#include "desktop/ScreenText.h"
#include "desktop/TextPrinter.h"
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

// The toolkit would take its own first button, and each system has them in another order.
QMessageBox::StandardButton DefaultOf(int flags) {
    if ((flags & 0x0F) != kButtonsYesNoCancel && (flags & 0x0F) != kButtonsYesNo) return QMessageBox::Ok;
    return (flags & kDefaultSecondButton) != 0 ? QMessageBox::No : QMessageBox::Yes;
}

// The text or its beginning, so that the buttons stay on the screen.
QString ShortMessage(std::string_view text) {
    constexpr std::ptrdiff_t kMostLines = 20;
    const QString whole = ToQString(text);
    const QStringList lines = whole.split('\n');
    const QString few = lines.size() <= kMostLines ? whole : lines.mid(0, kMostLines).join('\n') + "\n\u2026";
    const QString shown = ShownText(text);
    return few.size() < shown.size() ? few : shown;
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

// "Name|Pattern;Pattern|..." in the toolkit's form, "Name (Pattern Pattern)" each.
QStringList FiltersOf(const std::string& filter) {
    QStringList filters;
    const std::vector<std::string_view> parts = SplitText(filter, '|');
    for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
        const std::string name(BeforeFirst(parts[i], " ("));
        // "*.*" stands for all files, those without a dot too.
        const std::string patterns = ReplaceAll(ReplaceAll(parts[i + 1], ";", " "), "*.*", "*");
        filters << ToQString(Concat(name, " (", patterns, ")"));
    }
    return filters;
}

// What a name without an extension gets by a filter of the toolkit's form: that of the first pattern, empty
// where this stands for any.
QString SuffixOf(const QString& filter) {
    static const QRegularExpression kFirstPattern("\\(\\*\\.([^ *?)]+)[ )]");
    return kFirstPattern.match(filter).captured(1);
}

// The folder of a path that may name a file; empty where there is none.
QString FolderOf(const std::string& path) {
    if (path.empty()) return {};
    const QFileInfo file(PathToQString(path));
    const QString folder = file.isDir() ? file.filePath() : file.path();
    return QFileInfo(folder).isAbsolute() && QFileInfo(folder).isDir() ? folder : QString();
}

// Opens the dialog in the folder of its start file, else in its start folder, else where the last dialog of
// its kind ended.
void SetUp(QFileDialog& shown, const FileDialog& dialog, const QString& lastFolder) {
    const QStringList filters = FiltersOf(dialog.filter);
    if (!filters.isEmpty()) {
        shown.setNameFilters(filters);
        shown.selectNameFilter(filters[std::clamp<qsizetype>(dialog.filterIndex - 1, 0, filters.size() - 1)]);
    }
    for (const QString& folder :
         {FolderOf(dialog.startFile), FolderOf(dialog.startFolder), FolderOf(PathFromQString(lastFolder))}) {
        if (folder.isEmpty()) continue;
        shown.setDirectory(folder);
        break;
    }
    if (!dialog.startFile.empty()) shown.selectFile(PathToQString(FileName(dialog.startFile)));
    shown.setDefaultSuffix(ToQString(dialog.defaultExtension));
}

std::string ChosenPath(QFileDialog& shown, QString& lastFolder) {
    if (shown.exec() != QDialog::Accepted || shown.selectedFiles().isEmpty()) return {};
    lastFolder = shown.directory().absolutePath();
    return PathFromQString(shown.selectedFiles().front());
}

// Whether the file may be written. Files are found without regard to case, but the toolkit's dialog has asked
// only about one of exactly that name; this asks about one in another case.
bool MayReplace(QFileDialog& dialog, const std::string& path) {
    const QFileInfo chosen(PathToQString(path));
    if (chosen.exists()) return true;
    const QStringList names = chosen.dir().entryList(QDir::Files | QDir::Hidden);
    const auto other = std::find_if(names.begin(), names.end(), [&](const QString& name) {
        return name.compare(chosen.fileName(), Qt::CaseInsensitive) == 0;
    });
    if (other == names.end()) return true;
    const QString question = QString("\"%1\" already exists.\nDo you want to replace it?").arg(*other);
    return QMessageBox::warning(&dialog, dialog.windowTitle(), question, QMessageBox::Yes | QMessageBox::No,
                                QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace

MessageAnswer DesktopHost::ShowMessage(std::string_view text, int flags, std::string_view title,
                                       Form* owner) {
    if (TrimBlanks(text).empty()) return MessageAnswer::None;
    const DialogRound round(*this);
    QMessageBox box(MarkOf(flags), ToQString(title), ShortMessage(text), ButtonsOf(flags),
                    OwnerWindow(owner));
    box.setTextFormat(Qt::PlainText);
    if (box.text() != ToQString(text)) box.setDetailedText(ToQString(text));
    box.setDefaultButton(DefaultOf(flags));
    const MessageAnswer answer = AnswerOf(box.exec());
    EndClosedLoop();
    return answer;
}

std::string DesktopHost::ShowOpenDialog(const FileDialog& dialog) {
    const DialogRound round(*this);
    QFileDialog shown(OwnerWindow(nullptr), ToQString(dialog.title));
    shown.setAcceptMode(QFileDialog::AcceptOpen);
    shown.setFileMode(dialog.fileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    SetUp(shown, dialog, openFolder_);
    return ChosenPath(shown, openFolder_);
}

std::string DesktopHost::ShowSaveDialog(const FileDialog& dialog) {
    const DialogRound round(*this);
    QFileDialog shown(OwnerWindow(nullptr), ToQString(dialog.title));
    shown.setAcceptMode(QFileDialog::AcceptSave);
    shown.setFileMode(QFileDialog::AnyFile);
    shown.setOption(QFileDialog::DontConfirmOverwrite, !dialog.overwritePrompt);
    SetUp(shown, dialog, saveFolder_);
    if (dialog.defaultExtension.empty()) {
        // Set before the name is accepted, so that the question before overwriting is about the whole name.
        shown.setDefaultSuffix(SuffixOf(shown.selectedNameFilter()));
        QObject::connect(&shown, &QFileDialog::filterSelected, &shown,
                         [&shown](const QString& filter) { shown.setDefaultSuffix(SuffixOf(filter)); });
    }
    std::string path = ChosenPath(shown, saveFolder_);
    while (!path.empty() && dialog.overwritePrompt && !MayReplace(shown, path))
        path = endTimer_.isActive() ? std::string() : ChosenPath(shown, saveFolder_);
    return path;
}

std::string DesktopHost::ShowFolderDialog(std::string_view title, const std::string& startFolder) {
    const DialogRound round(*this);
    QFileDialog shown(OwnerWindow(nullptr), ToQString(title));
    shown.setFileMode(QFileDialog::Directory);
    shown.setOption(QFileDialog::ShowDirsOnly);
    const QString folder = FolderOf(startFolder);
    if (!folder.isEmpty()) shown.setDirectory(folder);
    if (shown.exec() != QDialog::Accepted || shown.selectedFiles().isEmpty()) return {};
    return PathFromQString(shown.selectedFiles().front());
}

namespace {

void PlaceQuarterInside(QDialog& dialog, const QWidget& window) {
    const QRect around = window.frameGeometry();
    const QPoint corner = around.topLeft() + QPoint(around.width() / 4, around.height() / 4);
    dialog.move(PlaceOnScreen(dialog, QRect(corner, dialog.sizeHint()), dialog.minimumSize()).topLeft());
}

}  // namespace

std::optional<std::string> DesktopHost::InputBox(const InputQuestion& question) {
    const DialogRound round(*this);
    QInputDialog shown(OwnerWindow(nullptr));
    shown.setWindowTitle(ToQString(question.title));
    shown.setLabelText(ToQString(question.prompt));
    if (auto* label = shown.findChild<QLabel*>()) label->setTextFormat(Qt::PlainText);
    shown.setTextValue(ToQString(question.text));
    if (question.quarterInside != nullptr) {
        if (const QWidget* window = Find(*question.quarterInside)) PlaceQuarterInside(shown, *window);
    }
    if (shown.exec() != QDialog::Accepted) return std::nullopt;
    return FromQString(shown.textValue());
}

// Adds a button "Preview" where the dialog is the toolkit's own. Where the system shows its dialog, that one
// has a preview or none.
bool DesktopHost::ShowPrintDialog(std::string_view title) {
    const DialogRound round(*this);
    if (printer_ == nullptr) printer_ = MakeTextPrinter();
    printer_->setDocName(ToQString(title));
    QPrintDialog shown(printer_.get(), OwnerWindow(nullptr));
    shown.setWindowTitle(ToQString(title));
    shown.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize |
                     QAbstractPrintDialog::PrintCollateCopies);
    previewWanted_ = false;
    if (auto* buttons = shown.findChild<QDialogButtonBox*>()) {
        const QPushButton* preview = buttons->addButton("Pre&view", QDialogButtonBox::ActionRole);
        QObject::connect(preview, &QPushButton::clicked, &shown, [this, &shown] {
            previewWanted_ = true;
            shown.accept();
        });
    }
    return shown.exec() == QDialog::Accepted;
}

PrintOutcome DesktopHost::Print(std::string_view text) {
    if (printer_ == nullptr) return PrintOutcome::Failed;
    // Events run between the lines; none may use the printer.
    const DialogRound round(*this);
    if (!previewWanted_) {
        const bool printed = PrintText(text, *printer_, [this] { ProcessEvents(); });
        return printed ? PrintOutcome::Printed : PrintOutcome::Failed;
    }
    QPrintPreviewDialog shown(printer_.get(), OwnerWindow(nullptr));
    shown.setWindowTitle(printer_->docName());
    // The pages are asked for to show them, and once more to print them.
    bool printed = true;
    QObject::connect(&shown, &QPrintPreviewDialog::paintRequested, &shown,
                     [text, &printed](QPrinter* printer) { printed = PrintText(text, *printer, [] {}); });
    if (shown.exec() != QDialog::Accepted) return PrintOutcome::GivenUp;
    return printed ? PrintOutcome::Printed : PrintOutcome::Failed;
}

bool DesktopHost::OpenDocument(const std::string& path, const std::string&) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(PathToQString(path)));
}

}  // namespace orlo
