#include "StateOfEachTest.h"

#include "Framework.h"
#include "Journal.h"
#include "SystemStandIns.h"

void StateOfEachTest::OnTestStart(const testing::TestInfo& /*test*/) {
    pool_.emplace();
    takeJournal();
}

void StateOfEachTest::OnTestEnd(const testing::TestInfo& /*test*/) {
    finishAnimations();
    runWaitingWork();
    emptyJailbreakRoot();
    pool_.reset();
}
