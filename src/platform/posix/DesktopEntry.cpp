#include "platform/posix/DesktopEntry.h"

#include "base/mString.h"

namespace platform {
namespace {

constexpr std::string_view kGroup = "[Desktop Entry]";
constexpr std::string_view kReserved = " \t\n\r\"'\\><~|&;$*?#()`";
constexpr std::string_view kEscapedInQuotes = "\"`$\\";

std::string QuotedArgument(std::string_view argument) {
    const bool quoted = argument.empty() || argument.find_first_of(kReserved) != std::string_view::npos;
    std::string text = quoted ? "\"" : "";
    for (const char c : argument) {
        if (quoted && kEscapedInQuotes.find(c) != std::string_view::npos)
            text += '\\';
        text += c;
        if (c == '%')
            text += '%';
    }
    if (quoted)
        text += '"';
    return text;
}

std::string EscapedValue(std::string_view value) {
    std::string text;
    for (const char c : value) {
        switch (c) {
            case '\\':
                text += "\\\\";
                break;
            case '\n':
                text += "\\n";
                break;
            case '\t':
                text += "\\t";
                break;
            case '\r':
                text += "\\r";
                break;
            default:
                text += c;
        }
    }
    if (!text.empty() && text.front() == ' ')
        text.replace(0, 1, "\\s");
    return text;
}

std::string UnescapedValue(std::string_view value) {
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        switch (value[++i]) {
            case 's':
                text += ' ';
                break;
            case 'n':
                text += '\n';
                break;
            case 't':
                text += '\t';
                break;
            case 'r':
                text += '\r';
                break;
            default:
                text += value[i];
        }
    }
    return text;
}

// Cuts an unescaped Exec value into its arguments by the quoting rules above.
std::vector<std::string> ExecArguments(std::string_view exec) {
    std::vector<std::string> arguments;
    std::size_t i = 0;
    while (i < exec.size()) {
        if (exec[i] == ' ' || exec[i] == '\t' || exec[i] == '\n') {
            ++i;
            continue;
        }
        std::string& argument = arguments.emplace_back();
        bool quoted = false;
        for (; i < exec.size() && (quoted || (exec[i] != ' ' && exec[i] != '\t' && exec[i] != '\n')); ++i) {
            if (exec[i] == '"') {
                quoted = !quoted;
            } else if (quoted && exec[i] == '\\' && i + 1 < exec.size()) {
                argument += exec[++i];
            } else if (exec[i] == '%' && i + 1 < exec.size() && exec[i + 1] == '%') {
                argument += exec[++i];
            } else {
                argument += exec[i];
            }
        }
    }
    return arguments;
}

}  // namespace

std::string DesktopEntryText(const DesktopEntry& entry) {
    std::string exec;
    for (const std::string& argument : entry.exec)
        exec += (exec.empty() ? "" : " ") + QuotedArgument(argument);
    std::string text = std::string(kGroup) + "\nType=Application\nName=" + EscapedValue(entry.name) +
                       "\nComment=" + EscapedValue(entry.comment) + "\nExec=" + EscapedValue(exec) + "\n";
    if (!entry.path.empty())
        text += "Path=" + EscapedValue(entry.path) + "\n";
    return text + "Terminal=false\n";
}

std::optional<DesktopEntry> ParseDesktopEntry(std::string_view text) {
    DesktopEntry entry;
    bool inGroup = false;
    bool found = false;
    bool hasExec = false;
    mString::ForEachLine(text, [&](const mString::Line& line) {
        if (line.text.starts_with('[')) {
            inGroup = line.text == kGroup;
            found = found || inGroup;
            return;
        }
        const std::size_t equals = line.text.find('=');
        if (!inGroup || equals == std::string_view::npos)
            return;
        const std::string_view key = mString::TrimView(line.text.substr(0, equals));
        const std::string value = UnescapedValue(mString::TrimView(line.text.substr(equals + 1)));
        if (key == "Name")
            entry.name = value;
        else if (key == "Comment")
            entry.comment = value;
        else if (key == "Path")
            entry.path = value;
        else if (key == "Exec") {
            entry.exec = ExecArguments(value);
            hasExec = true;
        }
    });
    return found && hasExec ? std::optional<DesktopEntry>(entry) : std::nullopt;
}

}  // namespace platform
