# Builds all but the desktop by itself, and looks that no compiler call knows of Qt.
execute_process(COMMAND_ERROR_IS_FATAL ANY
  COMMAND ${CMAKE_COMMAND} --fresh -S ${SOURCE_DIR} -B ${BUILD_DIR} -G ${GENERATOR}
    -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_BUILD_TYPE=Debug -D CMAKE_CXX_FLAGS_DEBUG=-O0
    -D VELMORAN_DESKTOP=OFF -D VELMORAN_TESTS=OFF)
execute_process(COMMAND_ERROR_IS_FATAL ANY
  COMMAND ${CMAKE_COMMAND} --build ${BUILD_DIR} --target velmoran_core)
file(READ ${BUILD_DIR}/compile_commands.json calls)
if(NOT calls MATCHES "position.cpp" OR calls MATCHES "Qt|qt[0-9]|QT_")
  message(FATAL_ERROR "The core is compiled with Qt in sight")
endif()
