#include "TestFunctions.h"

#include "Framework.h"
#include "Journal.h"
#include "SystemStandIns.h"

#include <gtest/gtest.h>

#include <langinfo.h>

#include <array>
#include <clocale>
#include <cstddef>
#include <cstdlib>
#include <deque>
#include <string>

namespace {

const char* takeJournalLine() {
    static std::deque<std::string> left;
    static std::string taken;
    for (auto& line : takeJournal())
        left.push_back(std::move(line));
    if (left.empty())
        return nullptr;
    taken = std::move(left.front());
    left.pop_front();
    return taken.c_str();
}

std::size_t runAllWaitingWork() {
    return runWaitingWork();
}

void reportFailure(const char* file, int line, const char* check) {
    ADD_FAILURE_AT(file, line) << check;
}

const char* setWholeLocale(int category, const char* name) {
    constexpr int all = 0; // numbered otherwise there
    return category == all ? std::setlocale(LC_ALL, name) : nullptr;
}

/// What a locale tells of itself, of which tests ask for the name of the encoding alone.
const char* tellOfLocale(int item) {
    constexpr int encoding = 0; // numbered otherwise there
    return item == encoding ? nl_langinfo(CODESET) : nullptr;
}

} // namespace

Imports testFunctions() {
    static const std::array imports{Import{"_accessoryOf", code(accessoryOf)},
                                    Import{"_aliveOf", code(aliveOf)},
                                    Import{"_allocatedByName", code(allocatedByName)},
                                    Import{"_answerNextInitialiserWith", code(answerNextInitialiserWith)},
                                    Import{"_emptySpecifier", code(emptySpecifier)},
                                    Import{"_finishAnimations", code(finishAnimations)},
                                    Import{"_forgetSuites", code(forgetSuites)},
                                    Import{"_free", code(std::free)},
                                    Import{"_invokeForBoolean", code(invokeForBoolean)},
                                    Import{"_invokeForInteger", code(invokeForInteger)},
                                    Import{"_invokeWithBooleans", code(invokeWithBooleans)},
                                    Import{"_invokeWithDouble", code(invokeWithDouble)},
                                    Import{"_layOut", code(layOut)},
                                    Import{"_mblen", code(std::mblen)},
                                    Import{"_newByName", code(newByName)},
                                    Import{"_newCell", code(newCell)},
                                    Import{"_newWithCoder", code(newWithCoder)},
                                    Import{"_newWithFrame", code(newWithFrame)},
                                    Import{"_nl_langinfo", code(tellOfLocale)},
                                    Import{"_number", code(number)},
                                    Import{"_observe", code(observe)},
                                    Import{"_perform", code(perform)},
                                    Import{"_performMixed", code(performMixed)},
                                    Import{"_pickDocument", code(pickDocument)},
                                    Import{"_postNotification", code(postNotification)},
                                    Import{"_reportFailure", code(reportFailure)},
                                    Import{"_runAllWaitingWork", code(runAllWaitingWork)},
                                    Import{"_servicesLibrary", code(servicesLibrary)},
                                    Import{"_setServicesLibrary", code(setServicesLibrary)},
                                    Import{"_setlocale", code(setWholeLocale)},
                                    Import{"_takeJournalLine", code(takeJournalLine)},
                                    Import{"_text", code(text)},
                                    Import{"_titleViewOf", code(titleViewOf)},
                                    Import{"_typesOf", code(typesOf)}};
    return imports;
}
