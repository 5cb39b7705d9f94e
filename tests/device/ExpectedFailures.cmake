# expect_failure(NAME MESSAGE COMMAND...): a test that passes when the command fails with that message.
function(expect_failure name message)
    add_test(NAME ${name} COMMAND ${CMAKE_COMMAND} -D MESSAGE=${message}
        -P ${CMAKE_SOURCE_DIR}/tests/device/ExpectFailure.cmake -- ${ARGN})
endfunction()

# expect_failure_by_signature(NAME MESSAGE COMMAND...): the same where the failure is that of a wrong signature. It has
# seven bits for a program of this system, so that of 128 wrong ones one is right: one of four runs has to fail.
function(expect_failure_by_signature name message)
    add_test(NAME ${name} COMMAND ${CMAKE_COMMAND} -D MESSAGE=${message} -D RUNS=4
        -P ${CMAKE_SOURCE_DIR}/tests/device/ExpectFailure.cmake -- ${ARGN})
endfunction()
