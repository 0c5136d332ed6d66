#include "platform/WindowsCommandLine.h"

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

size_t SkipBlanks(std::string_view text, size_t pos) {
    while (pos < text.size() && IsBlank(text[pos]))
        ++pos;
    return pos;
}

// Backslashes are only special in front of a quote: there each pair stands for one backslash, and an odd
// one left over makes the quote literal. A quote after an even run is left for ReadQuote.
size_t ReadBackslashes(std::string_view text, size_t pos, std::string& argument) {
    size_t count = 0;
    while (pos < text.size() && text[pos] == '\\') {
        ++count;
        ++pos;
    }
    if (pos == text.size() || text[pos] != '"') {
        argument.append(count, '\\');
        return pos;
    }
    argument.append(count / 2, '\\');
    if (count % 2 == 0)
        return pos;
    argument += '"';
    return pos + 1;
}

size_t ReadQuote(std::string_view text, size_t pos, bool& quoted, std::string& argument) {
    if (quoted && pos + 1 < text.size() && text[pos + 1] == '"') {
        argument += '"';
        return pos + 2;
    }
    quoted = !quoted;
    return pos + 1;
}

// Reads the argument that starts at `pos` and returns the position of the blank or end that closes it.
size_t ReadArgument(std::string_view text, size_t pos, std::string& argument) {
    bool quoted = false;
    while (pos < text.size() && (quoted || !IsBlank(text[pos]))) {
        if (text[pos] == '\\') {
            pos = ReadBackslashes(text, pos, argument);
        } else if (text[pos] == '"') {
            pos = ReadQuote(text, pos, quoted, argument);
        } else {
            argument += text[pos++];
        }
    }
    return pos;
}

}  // namespace

std::vector<std::string> SplitWindowsCommandLine(std::string_view parameters) {
    const std::string_view text = parameters.substr(0, parameters.find('\0'));
    std::vector<std::string> arguments;
    for (size_t pos = SkipBlanks(text, 0); pos < text.size(); pos = SkipBlanks(text, pos)) {
        pos = ReadArgument(text, pos, arguments.emplace_back());
    }
    return arguments;
}

namespace {

// One argument as the runtime's rules read it back: quoted when it is empty or holds a blank or a quote;
// inside the quotes a quote and the backslashes before it are escaped, and so are the backslashes before
// the closing quote.
void AppendArgument(std::string& text, std::string_view argument) {
    if (!argument.empty() && argument.find_first_of(" \t\"") == std::string_view::npos) {
        text += argument;
        return;
    }
    text += '"';
    std::size_t backslashes = 0;
    for (const char c : argument) {
        if (c == '\\') {
            ++backslashes;
            continue;
        }
        text.append(c == '"' ? backslashes * 2 + 1 : backslashes, '\\');
        backslashes = 0;
        text += c;
    }
    text.append(backslashes * 2, '\\');
    text += '"';
}

}  // namespace

std::string JoinWindowsCommandLine(const std::vector<std::string>& arguments) {
    std::string text;
    for (const std::string& argument : arguments) {
        if (!text.empty())
            text += ' ';
        AppendArgument(text, argument);
    }
    return text;
}
