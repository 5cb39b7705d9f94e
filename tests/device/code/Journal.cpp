// The journal is the program's that loads the tests, whose texts are laid out otherwise.

#include "Journal.h"

#include "SystemStandIns.h"

extern "C" {
/// The journal's first line, taken away; null when there is none. Good until the next call.
const char* takeJournalLine();
std::size_t runAllWaitingWork();
}

std::vector<std::string> takeJournal() {
    std::vector<std::string> lines;
    while (const auto* const line = takeJournalLine())
        lines.emplace_back(line);
    return lines;
}

std::size_t runWaitingWork() {
    return runAllWaitingWork();
}
