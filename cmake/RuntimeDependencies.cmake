# TDLib and the Lottie player come from the npm registry at pinned versions
# (deps/package.json). They are installed into the build tree at configure time
# and copied where the application looks for them; nothing of them is committed.
set(VOST_NPM_DIR ${CMAKE_BINARY_DIR}/npm)
set(VOST_TDJSON_SOURCE ${VOST_NPM_DIR}/node_modules/@prebuilt-tdlib/linux-x64-glibc/libtdjson.so)
set(VOST_LOTTIE_SOURCE ${VOST_NPM_DIR}/node_modules/lottie-web/build/player/lottie_light.min.js)

configure_file(${PROJECT_SOURCE_DIR}/deps/package.json ${VOST_NPM_DIR}/package.json COPYONLY)
if(NOT EXISTS ${VOST_TDJSON_SOURCE} OR NOT EXISTS ${VOST_LOTTIE_SOURCE}
   OR ${PROJECT_SOURCE_DIR}/deps/package.json IS_NEWER_THAN ${VOST_NPM_DIR}/.installed)
    find_program(NPM_EXECUTABLE npm REQUIRED)
    message(STATUS "Installing TDLib and lottie-web from npm into ${VOST_NPM_DIR}")
    execute_process(
        COMMAND ${NPM_EXECUTABLE} install --no-package-lock --no-audit --no-fund --loglevel=error
        WORKING_DIRECTORY ${VOST_NPM_DIR}
        RESULT_VARIABLE npm_result)
    if(NOT npm_result EQUAL 0 OR NOT EXISTS ${VOST_TDJSON_SOURCE} OR NOT EXISTS ${VOST_LOTTIE_SOURCE})
        message(FATAL_ERROR "npm could not install the runtime dependencies listed in deps/package.json")
    endif()
    file(TOUCH ${VOST_NPM_DIR}/.installed)
endif()

set(VOST_TDJSON ${CMAKE_BINARY_DIR}/${VOST_PRIVATE_LIB_DIR}/libtdjson.so)
set(VOST_RESOURCE_BUNDLE ${CMAKE_BINARY_DIR}/${VOST_RESOURCE_DIR}/Vost_Vost.bundle/Resources)
set(VOST_LOTTIE ${VOST_RESOURCE_BUNDLE}/lottie_light.min.js)
configure_file(${VOST_TDJSON_SOURCE} ${VOST_TDJSON} COPYONLY)
configure_file(${VOST_LOTTIE_SOURCE} ${VOST_LOTTIE} COPYONLY)

install(FILES ${VOST_TDJSON} DESTINATION ${VOST_PRIVATE_LIB_DIR})
install(FILES ${VOST_LOTTIE} DESTINATION ${VOST_RESOURCE_DIR}/Vost_Vost.bundle/Resources)
