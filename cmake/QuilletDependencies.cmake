# What Backend needs of two libraries beyond their lowest version, said while configuring rather than found out later.

quillet_find(simdjson libsimdjson-dev)
quillet_find(CURL libcurl4-openssl-dev 7.88)

# Only simdjson's first pass is used, and the index that this makes is no public interface. These are the versions that
# the tests have been run with, lowest and highest (README: "Tested with").
set(lowest 3.0.1)
set(highest 4.6)
option(QUILLET_ANY_SIMDJSON "Take a version of simdjson that the tests have not been run with" OFF)
if(NOT QUILLET_ANY_SIMDJSON)
    string(REGEX MATCH "^[0-9]+[.][0-9]+" series "${simdjson_VERSION}")
    if(simdjson_VERSION VERSION_LESS lowest OR series VERSION_GREATER highest)
        message(FATAL_ERROR
            "simdjson ${simdjson_VERSION} has not been tested: ${lowest} to ${highest} have. If you want to use it all the "
            "same, run the tests, and configure with -D QUILLET_ANY_SIMDJSON=ON.")
    endif()
endif()

# libcurl hands out the context of whatever TLS library it is built with, and we take it for one of OpenSSL's.
if(CMAKE_CROSSCOMPILING)
    # The program cannot be run here. Debian's packages, among others, bring a script that knows.
    find_program(QUILLET_CURL_CONFIG curl-config HINTS "${CURL_INCLUDE_DIRS}/../bin" NO_DEFAULT_PATH)
    if(QUILLET_CURL_CONFIG)
        execute_process(COMMAND "${QUILLET_CURL_CONFIG}" --ssl-backends
            OUTPUT_VARIABLE QUILLET_CURL_TLS OUTPUT_STRIP_TRAILING_WHITESPACE)
    else()
        message(STATUS "Whether libcurl is built with OpenSSL could not be checked; it has to be.")
        set(QUILLET_CURL_TLS OpenSSL)
    endif()
elseif(NOT QUILLET_CURL_TLS_OF STREQUAL "${CURL_LIBRARIES}")
    try_run(runs compiles
        SOURCE_FROM_CONTENT tls.cpp "
            #include <curl/curl.h>
            #include <cstdio>
            int main() { std::puts(curl_version_info(CURLVERSION_NOW)->ssl_version); }"
        LINK_LIBRARIES CURL::libcurl
        COMPILE_OUTPUT_VARIABLE said
        RUN_OUTPUT_VARIABLE tls)
    if(NOT compiles OR NOT runs EQUAL 0)
        message(FATAL_ERROR "A program with libcurl could not be built and run:\n${said}")
    endif()
    string(STRIP "${tls}" tls)
    set(QUILLET_CURL_TLS "${tls}" CACHE INTERNAL "The TLS library that libcurl is built with")
    set(QUILLET_CURL_TLS_OF "${CURL_LIBRARIES}" CACHE INTERNAL "The libcurl that was asked")
endif()
if(NOT QUILLET_CURL_TLS MATCHES "^OpenSSL")
    message(FATAL_ERROR
        "libcurl must be built with OpenSSL, and this one is built with ${QUILLET_CURL_TLS}. On Debian it is the package "
        "libcurl4-openssl-dev.")
endif()
