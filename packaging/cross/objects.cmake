# Included after project(): compiles for Windows without a Qt for it. The headers are those of this machine's Qt,
# which are the same on all systems. Nothing can be linked with it, so the programs are left empty.
execute_process(COMMAND qmake6 -query QT_INSTALL_LIBS OUTPUT_VARIABLE libraries OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)
set(Qt6_DIR ${libraries}/cmake/Qt6)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
set(CMAKE_IMPORT_LIBRARY_SUFFIX "") # this machine's shared libraries have none
set(CMAKE_CXX_LINK_EXECUTABLE "<CMAKE_COMMAND> -E touch <TARGET>")
add_library(Qt6::EntryPointPrivate INTERFACE IMPORTED)
