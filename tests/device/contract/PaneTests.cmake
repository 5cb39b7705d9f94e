# What tests the pane from outside, as the frameworks deal with it: over the sources as they are compiled for this machine,
# and over the bundle as it is installed.
set(DEVICE_PANE_TESTS
    ${CMAKE_CURRENT_LIST_DIR}/BackupMethodsTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/BackupPageFixture.cpp
    ${CMAKE_CURRENT_LIST_DIR}/BackupPageTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/CellsTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ImageSwitchTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PublishedMethodsTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/RootPageTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/RulePageTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ScenarioTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/WholePaneFixture.cpp)

# What stands in for the frameworks and the system, and what the tests handle it with.
set(DEVICE_STAND_INS
    ${CMAKE_CURRENT_LIST_DIR}/CellStandIns.m
    ${CMAKE_CURRENT_LIST_DIR}/DocumentStandIns.m
    ${CMAKE_CURRENT_LIST_DIR}/EndOfObjects.m
    ${CMAKE_CURRENT_LIST_DIR}/FoundationStandIns.m
    ${CMAKE_CURRENT_LIST_DIR}/Framework.m
    ${CMAKE_CURRENT_LIST_DIR}/FrameworkState.m
    ${CMAKE_CURRENT_LIST_DIR}/JailbreakRoot.m
    ${CMAKE_CURRENT_LIST_DIR}/LayoutStandIns.m
    ${CMAKE_CURRENT_LIST_DIR}/StandIns.m)
set(DEVICE_TEST_SUPPORT
    ${CMAKE_CURRENT_LIST_DIR}/GnuRuntime.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Journal.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StateOfEachTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SystemStandIns.cpp)

# What the scenario tells the frameworks, as the pane's sources do when they are compiled for this machine.
set(DEVICE_SCENARIO_JOURNAL ${CMAKE_SOURCE_DIR}/build/device-contract/scenario.journal)
