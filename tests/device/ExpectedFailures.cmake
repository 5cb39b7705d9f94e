# expect_failure(NAME MESSAGE COMMAND...): a test that passes when the command fails with that message.
function(expect_failure name message)
    add_test(NAME ${name} COMMAND ${CMAKE_COMMAND} -D MESSAGE=${message}
        -P ${CMAKE_SOURCE_DIR}/tests/device/ExpectFailure.cmake -- ${ARGN})
endfunction()
