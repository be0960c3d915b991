# Installs the built tree into a folder of its own, then builds and runs the client against it twice:
# as a CMake project and with pkg-config. Needs BUILD (the build folder), CLIENT, WORK and COMPILER.

function(step name)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${name} failed (${result}):\n${out}\n${err}")
    endif()
    set(output "${out}" PARENT_SCOPE)
endfunction()

function(expect text)
    string(FIND "${output}" "${text}" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "Expected \"${text}\" in: ${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
set(prefix ${WORK}/prefix)
step("install" ${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
file(GLOB_RECURSE packages ${prefix}/VellumConfig.cmake ${prefix}/vellum.pc)
list(LENGTH packages count)
if(NOT count EQUAL 2)
    message(FATAL_ERROR "A CMake package and a pkg-config file were expected: ${packages}")
endif()
file(GLOB_RECURSE library ${prefix}/libvellum.so)
get_filename_component(libdir ${library} DIRECTORY)

step("configure" ${CMAKE_COMMAND} -S ${CLIENT} -B ${WORK}/cmake -G Ninja
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${COMPILER})
step("build" ${CMAKE_COMMAND} --build ${WORK}/cmake)
step("run" ${WORK}/cmake/client)
expect("theme found, main colour #256eb4, button drawn")

set(ENV{PKG_CONFIG_PATH} ${libdir}/pkgconfig)
step("pkg-config" pkg-config --cflags --libs vellum)
string(STRIP "${output}" flags)
separate_arguments(flags UNIX_COMMAND "${flags}")
step("compile" ${COMPILER} -std=c++17 -Wall -Wextra -Werror ${CLIENT}/main.cpp -o ${WORK}/client ${flags})
set(ENV{LD_LIBRARY_PATH} ${libdir})
step("run with pkg-config" ${WORK}/client)
expect("theme absent, main colour #000000, button drawn")
message("Totals: 2 passed, 0 failed, 0 skipped")
