# Installs the package into a scratch prefix, moves the prefix elsewhere (the
# package must be relocatable), then builds and runs a host against it twice:
# with find_package(lcdwidgets) and with pkg-config. Also checks which symbols
# the library exports.
#   cmake -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK=... -P check.cmake
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT rc EQUAL 0)
        message(FATAL_ERROR "failed (${rc}): ${ARGN}\n${out}\n${err}")
    endif()
    set(LAST_OUTPUT "${out}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK}/staging)
file(RENAME ${WORK}/staging ${WORK}/prefix)
set(prefix ${WORK}/prefix)
set(ENV{QT_QPA_PLATFORM} offscreen)

# find_package
run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples/host -B ${WORK}/host -DCMAKE_PREFIX_PATH=${prefix}
    -DCMAKE_BUILD_TYPE=Release)
run(${CMAKE_COMMAND} --build ${WORK}/host)
run(${WORK}/host/lcdhost ${WORK}/row.png)
if(NOT LAST_OUTPUT MATCHES "lcdwidgets 0.1.0" OR NOT LAST_OUTPUT MATCHES "row rendered"
   OR NOT LAST_OUTPUT MATCHES "brightness 76" OR NOT LAST_OUTPUT MATCHES "created 96 widget classes")
    message(FATAL_ERROR "unexpected host output: ${LAST_OUTPUT}")
endif()

# pkg-config
file(GLOB_RECURSE pcfiles ${prefix}/*/lcdwidgets.pc)
list(GET pcfiles 0 pcfile)
get_filename_component(pcdir ${pcfile} DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${pcdir})
run(pkg-config --cflags --libs lcdwidgets)
string(STRIP "${LAST_OUTPUT}" flags)
separate_arguments(flags UNIX_COMMAND "${flags}")
run(c++ -std=c++17 ${SOURCE_DIR}/examples/host/main.cpp ${SOURCE_DIR}/examples/host/everyclass.cpp -o ${WORK}/lcdhost-pc ${flags} -Wl,-rpath,${prefix}/lib)
run(${WORK}/lcdhost-pc ${WORK}/row-pc.png)
if(NOT LAST_OUTPUT MATCHES "row rendered")
    message(FATAL_ERROR "pkg-config host failed: ${LAST_OUTPUT}")
endif()

# Exported symbols: the entry points and the public classes, none of the internals.
file(GLOB_RECURSE libs ${prefix}/*/liblcdwidgets.so)
list(GET libs 0 lib)
run(nm -D --defined-only -C ${lib})
foreach(expected "T pluginit" "T pluginfo" "LCD::Widget::CommonItemType::setItemTitleRoll" "RollLabel::setTextLabel")
    if(NOT LAST_OUTPUT MATCHES "${expected}")
        message(FATAL_ERROR "symbol missing from the export table: ${expected}")
    endif()
endforeach()
foreach(hidden "::Impl" "captionText" "layoutWidth" "elideWithDots" "intSpinBoxWidth" "filterSpinRowKeys")
    if(LAST_OUTPUT MATCHES "${hidden}")
        message(FATAL_ERROR "internal symbol exported: ${hidden}")
    endif()
endforeach()
# Private headers stay in the source tree.
file(GLOB_RECURSE private_headers ${prefix}/*_p.h)
if(private_headers)
    message(FATAL_ERROR "private headers installed: ${private_headers}")
endif()
message(STATUS "package check passed")
