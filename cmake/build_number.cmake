# A build that looks for updates compares its number with those that are announced: one that nobody chose
# would take older releases for newer ones.
if(NOT CORVANE_BUILD_NUMBER STREQUAL "" AND NOT CORVANE_BUILD_NUMBER MATCHES "^[0-9]+(\\.[0-9]+)*$")
    message(FATAL_ERROR "CORVANE_BUILD_NUMBER is no number: ${CORVANE_BUILD_NUMBER}")
endif()
if(CORVANE_BUILD_NUMBER STREQUAL "")
    if(NOT CORVANE_FEED_URL STREQUAL "" AND NOT CORVANE_FEED_URL MATCHES "REPLACE_")
        message(FATAL_ERROR "CORVANE_FEED_URL needs a CORVANE_BUILD_NUMBER that is higher than the last one")
    endif()
    set(CORVANE_BUILD_NUMBER "1")
endif()
