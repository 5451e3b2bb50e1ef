# Settings and helper functions that every folder shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# Program, driver and data-file tool lie side by side in one folder that can be moved as a whole.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

add_compile_options(-Wall -Wextra -Wpedantic -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    add_compile_options(-Wno-restrict)  # GCC 12 warns wrongly at -O3 of "text" + std::string (its bug 105651)
endif()
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)

if(VARNEK_DENETIM)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# varnek_kitaplik(name SOURCES ... [LINK ...]): the static library of one folder. Its include path is that folder
# alone, so that a file can include only what its folder is linked with.
function(varnek_kitaplik ad)
    cmake_parse_arguments(A "" "" "SOURCES;LINK" ${ARGN})
    add_library(${ad} STATIC ${A_SOURCES})
    target_include_directories(${ad} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${ad} PUBLIC ${A_LINK})
endfunction()

# varnek_motoru_bulur(target): an executable that reaches the data engine through the driver manager. odbcinst.ini names
# the driver by its bare file name, so that the folder can be moved as a whole. It is the driver manager that opens the
# driver, so the program's own folder must be in its DT_RPATH: unlike DT_RUNPATH, that holds for libraries opened by
# libraries. Built as it is installed: a run path that is to be changed at installation would be padded with empty
# entries, which stand for the current folder.
function(varnek_motoru_bulur hedef)
    if(UNIX)
        set_target_properties(${hedef} PROPERTIES BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "$ORIGIN")
        target_link_options(${hedef} PRIVATE -Wl,--disable-new-dtags)
    endif()
    add_dependencies(${hedef} varnek-motor)
endfunction()
