# Read by ctest: each suite of the test programs is one of its tests. A process for each single test
# would take most of the time.
foreach(program ${programs})
    execute_process(COMMAND ${program} --gtest_list_tests
        OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "\n[A-Za-z0-9_/]+\\." suites "\n${listing}")
    foreach(suite ${suites})
        string(STRIP ${suite} suite)
        add_test(${suite} ${program} --gtest_brief=1 --gtest_filter=${suite}*)
        set_tests_properties(${suite} PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
        if(suite MATCHES "^Slow")
            set_tests_properties(${suite} PROPERTIES LABELS slow)
        endif()
    endforeach()
endforeach()
