#include "console/Options.h"

#include <charconv>

#include "core/Text.h"

namespace orlo {
namespace {

std::optional<std::uint64_t> ParseSeed(const std::string& text) {
    std::uint64_t seed = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, seed);
    if (error != std::errc() || stop != end) return std::nullopt;
    return seed;
}

}  // namespace

ConsoleOptions ParseConsoleOptions(const std::vector<std::string>& arguments) {
    ConsoleOptions options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const auto value = [&]() -> std::optional<std::string> {
            if (i + 1 < arguments.size()) return arguments[++i];
            options.fault = Concat("option ", argument, " needs a value");
            return std::nullopt;
        };
        if (argument == "--program") {
            options.program = value();
        } else if (argument == "--simulator") {
            options.simulator = value();
        } else if (argument == "--settings") {
            options.settings = value();
        } else if (argument == "--state") {
            options.state = value();
        } else if (argument == "--seed") {
            const auto text = value();
            if (text) options.seed = ParseSeed(*text);
            if (text && !options.seed) options.fault = Concat("option --seed: '", *text, "' is no number");
        } else if (argument == "--strict") {
            options.strict = true;
        } else if (argument == "--trace") {
            options.trace = true;
        } else if (argument == "--help" || argument == "-h") {
            options.help = true;
        } else if (argument == "--version") {
            options.version = true;
        } else if (argument.size() > 1 && argument.front() == '-') {
            options.fault = Concat("unknown option ", argument);
        } else if (options.script) {
            options.fault = "more than one script";
        } else {
            options.script = argument;
        }
    }
    return options;
}

std::string ConsoleHelp() {
    return R"(orlo-console [--program DIR] [--simulator DIR] [--settings FILE] [--state DIR] [--seed N] [--strict] [--trace]
             [SCRIPT]

Runs the planner by a script: from the file SCRIPT, or from standard input; one command a line, blank lines and
lines that start with # are skipped. A word with blanks stands in double quotes, with "" for a quote inside.

  --program DIR    the program folder with the rule files
  --simulator DIR  the simulator's folder, in place of the machine-wide setting
  --settings FILE  the settings file
  --state DIR      the folder of the kept files; by default "kept" beside the file of --settings
  --seed N         makes every random draw repeatable
  --strict         ends with status 2 on a question, dialog or input box without a queued answer, and on answers
                   left over at the end
  --trace          also prints progress and the buttons of messages

  click NAME                      presses a button or chooses a menu entry
  set NAME TEXT                   fills a field and leaves it; chooses a combo box entry (#INDEX by place);
                                  sets a check box, option or tick entry on or off; selects a tab by its key
  type NAME TEXT                  fills a field without leaving it; in one of several lines \n is a line end
                                  and \\ a backslash, with set too
  node TREE TEXT on|off           checks or unchecks the node of that text or key
  select LIST all|none|ROW[,...]  selects rows, counted from 0
  current LIST ROW                clicks a row        dblclick LIST ROW  double-clicks it
  sort LIST COLUMN                clicks a column header, by number or caption
  key NAME Delete|Insert|Enter|Escape|F1
  drop PATH                       drops a file on the main window
  focus NAME                      close [FORM]        timer NAME
  reply ok|yes|no|cancel          queues the answer to the next question
  choose [PATH]                   queues the answer to the next file or print dialog; without PATH a cancel
  input [TEXT]                    queues the answer to the next input box; without TEXT a cancel
  show NAME    rows LIST    entries COMBO    hover NAME [NODE]    popup NAME    props NAME
  enabled NAME    windows    echo TEXT    quit

Exit status: 0; 1 when the start-up failed; 2 when the script could not go on (a line on standard error says why);
128 and its number when a signal ended the program.
)";
}

}  // namespace orlo
