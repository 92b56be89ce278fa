#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace orlo {

struct Chart;
struct Form;

// What a file dialog is asked with. A filter is "Name|Pattern" pairs joined by "|".
struct FileDialog {
    std::string title;
    std::string startFile;
    std::string filter;
    int filterIndex = 1;  // counted from 1
    std::string startFolder;
    bool fileMustExist = false;
    bool overwritePrompt = false;
    std::string defaultExtension;
};

// What a line of text is asked with.
struct InputQuestion {
    std::string prompt;
    std::string title;
    std::string text = {};  // stands in the field at first
    // The box stands a quarter of this form's width and height in from its top left corner; null: in the
    // middle of the topmost window.
    Form* quarterInside = nullptr;
};

enum class PictureFormat { Png, Svg, Pdf };

enum class PrintOutcome { Printed, GivenUp, Failed };

// The front end as the logic sees it: windows, dialogs, timers and the processing of events.
class WindowHost {
  public:
    virtual ~WindowHost() = default;

    // Lets waiting events run: paints, timers and events of the topmost modal form.
    virtual void ProcessEvents() = 0;

    virtual void ShowForm(Form& form) = 0;  // not modal
    // Blocks until the form's close request, and clears it.
    virtual void ShowModal(Form& form, Form* owner) = 0;
    virtual void UnloadForm(Form& form) = 0;

    // Whether the places of this front end's windows on the screen are kept from one start to the next.
    virtual bool KeepsWindowPlace() const = 0;

    // Fires once after `milliseconds`, and runs the event procedure of that timer name.
    virtual void StartTimer(std::string_view name, int milliseconds) = 0;
    virtual void StopTimer(std::string_view name) = 0;
    virtual bool TimerArmed(std::string_view name) const = 0;

    // Chosen path; empty on cancel.
    virtual std::string ShowOpenDialog(const FileDialog& dialog) = 0;
    virtual std::string ShowSaveDialog(const FileDialog& dialog) = 0;
    virtual std::string ShowFolderDialog(std::string_view title, const std::string& startFolder) = 0;

    // Nothing on cancel.
    virtual std::optional<std::string> InputBox(const InputQuestion& question) = 0;

    // Asks for a printer. False on cancel.
    virtual bool ShowPrintDialog(std::string_view title) = 0;
    // Prints the text on the printer chosen last, fixed-pitch, size 10. The user may see the pages first and
    // give the print up.
    virtual PrintOutcome Print(std::string_view text) = 0;

    // The file of a picture with the charts beside each other, at a size of its own whatever the window's. A
    // front end without a screen gives their tables as text. Empty where it can't be made.
    virtual std::string DrawCharts(std::span<const Chart* const> charts, PictureFormat format) = 0;

    virtual bool DrawsFormat(PictureFormat) const { return true; }

    // Opens a document with the system's default handler.
    virtual bool OpenDocument(const std::string& path, const std::string& workingFolder) = 0;
};

}  // namespace orlo
