find_package(GTest REQUIRED)

# corvex_run_tests(PROGRAM): runs a GoogleTest program as one test of CTest, its tests in another order each time. A
# failure's output names the order's seed; GTEST_RANDOM_SEED repeats it. By the prefix tools/count-tests knows that there
# are tests to count in it.
function(corvex_run_tests program)
    add_test(NAME GoogleTest.${program} COMMAND ${program} --gtest_shuffle --gtest_color=no)
endfunction()
