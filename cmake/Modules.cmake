# One library per folder of src/, one test program per folder of tests/.

add_library(blunko_warnings INTERFACE)
target_compile_options(blunko_warnings INTERFACE -Wall -Wextra)
if(TBK_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(TBK_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# add_module(folder libraries...): the library blunko_<folder>, made of src/<folder>.
function(add_module folder)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp ${PROJECT_SOURCE_DIR}/src/${folder}/*.h)
  add_library(blunko_${folder} STATIC ${sources})
  target_include_directories(blunko_${folder} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(blunko_${folder} PUBLIC ${ARGN} PRIVATE blunko_warnings)
endfunction()

# The search for leaks now and then crashes itself when it looks at the dynamic thread storage of a thread that is ending.
set(sanitizer ASAN_OPTIONS=intercept_tls_get_addr=0)

# add_module_tests(folder libraries...): the test program <folder>_tests, made of tests/<folder>.
function(add_module_tests folder)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${folder}/*.cpp
       ${PROJECT_SOURCE_DIR}/tests/${folder}/*.h)
  add_executable(${folder}_tests ${sources})
  target_include_directories(${folder}_tests PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${folder}_tests PRIVATE blunko_${folder} blunko_warnings GTest::gmock ${ARGN})
  target_compile_definitions(${folder}_tests PRIVATE TBK_TEST_FILES="${PROJECT_SOURCE_DIR}/tests")
  target_compile_options(${folder}_tests PRIVATE -O0)  # takes longer to optimise than to run
  add_test(NAME ${folder} COMMAND ${folder}_tests)
  set_tests_properties(${folder} PROPERTIES TIMEOUT 600
                       ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_LOGGING_RULES=qt.qpa.*=false;SDL_AUDIODRIVER=dummy;${sanitizer}")
endfunction()
