#include "base/PathDrop.h"

namespace PathDrop {

std::string PathOf(const std::optional<std::string>& text, const std::vector<std::string>& files) {
    if (text)
        return *text;
    return files.size() == 1 ? files.front() : std::string();
}

bool TakenAsCopy(bool offersText, std::size_t files) {
    return offersText || files == 1;
}

}  // namespace PathDrop
