# Copyright Corvane. MIT License.
# How modules, programs and tests are built. A module is a folder with Public/ and Private/, as in the engine: its
# objects are one OBJECT library (so that a test can link a module's private parts), and the module itself a shared
# library.

set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# The module manager finds modules beside the program, as in the engine's Binaries folder.
set(QUILLON_BINARIES ${CMAKE_BINARY_DIR}/Binaries)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${QUILLON_BINARIES})
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${QUILLON_BINARIES})

set(QUILLON_WARNINGS -Wall -Wextra -Wshadow -Werror)
# Assertion reports name the file as the repository does, wherever it was built.
add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=)
if(QUILLON_SANITIZE)
	# Source/ is built without run-time type information, which the vptr check needs.
	set(_sanitizers -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all)
	add_compile_options(${_sanitizers} -fno-omit-frame-pointer)
	add_link_options(${_sanitizers})
endif()
find_program(QUILLON_MOLD mold)
if(QUILLON_MOLD)
	add_link_options(-fuse-ld=mold)
endif()
find_package(Threads REQUIRED)

# quillon_reflect(<target> <module> <header>...): runs HeaderTool over those headers that declare reflected types and
# compiles what it writes into <target>.
function(quillon_reflect TARGET MODULE)
	set(reflected)
	set(outputs)
	set(generatedDir ${CMAKE_BINARY_DIR}/Generated/${MODULE})
	foreach(header IN LISTS ARGN)
		# A header with a reflection macro and no generated include is passed too, so that the tool reports it.
		file(STRINGS ${header} hit REGEX
			"^[ \t]*(#include \".*\\.generated\\.h\"|U(CLASS|STRUCT|PROPERTY|FUNCTION|ENUM|INTERFACE)\\()" LIMIT_COUNT 1)
		if(hit)
			get_filename_component(stem ${header} NAME_WE)
			list(APPEND reflected ${header})
			list(APPEND outputs ${generatedDir}/${stem}.generated.h ${generatedDir}/${stem}.gen.cpp)
			set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
		endif()
	endforeach()
	if(NOT reflected)
		return()
	endif()
	list(APPEND outputs ${generatedDir}/${MODULE}.init.gen.cpp)
	add_custom_command(OUTPUT ${outputs}
		COMMAND HeaderTool --module ${MODULE} --root ${CMAKE_SOURCE_DIR} --output ${generatedDir} ${reflected}
		DEPENDS HeaderTool ${reflected}
		COMMENT "Reflecting ${MODULE}" VERBATIM)
	add_custom_target(${MODULE}Generated DEPENDS ${outputs})
	target_sources(${TARGET} PRIVATE ${outputs})
	target_include_directories(${TARGET} PUBLIC ${generatedDir})
	add_dependencies(${TARGET} ${MODULE}Generated)
endfunction()

# quillon_module(<name> FOLDER <dir> [LINKS <modules>...] [PRIVATE_LINKS <libraries>...] [PLUGIN])
# PLUGIN: built as the engine builds plugin sources: C++14, no run-time type information, no exceptions.
function(quillon_module NAME)
	cmake_parse_arguments(ARG "PLUGIN" "FOLDER" "LINKS;PRIVATE_LINKS" ${ARGN})
	file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${ARG_FOLDER}/Private/*.cpp)
	list(FILTER sources EXCLUDE REGEX "/Private/Tests/")
	file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${ARG_FOLDER}/Public/*.h ${ARG_FOLDER}/Private/*.h)
	if(NOT sources)
		return()
	endif()
	string(TOUPPER ${NAME} upper)
	add_library(${NAME}Objects OBJECT ${sources})
	target_include_directories(${NAME}Objects PUBLIC ${ARG_FOLDER}/Public PRIVATE ${ARG_FOLDER}/Private)
	target_compile_definitions(${NAME}Objects PUBLIC ${upper}_API=__attribute__\(\(visibility\("default"\)\)\))
	target_compile_options(${NAME}Objects PRIVATE ${QUILLON_WARNINGS})
	if(ARG_PLUGIN)
		set_target_properties(${NAME}Objects PROPERTIES CXX_STANDARD 14)
		target_compile_options(${NAME}Objects PRIVATE -fno-rtti -fno-exceptions)
	else()
		set_target_properties(${NAME}Objects PROPERTIES CXX_STANDARD 17)
	endif()
	quillon_reflect(${NAME}Objects ${NAME} ${headers})
	target_link_libraries(${NAME}Objects PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
	add_library(${NAME} SHARED)
	target_link_libraries(${NAME} PUBLIC ${ARG_LINKS} PRIVATE ${NAME}Objects ${ARG_PRIVATE_LINKS})
	target_include_directories(${NAME} INTERFACE $<TARGET_PROPERTY:${NAME}Objects,INTERFACE_INCLUDE_DIRECTORIES>)
	target_compile_definitions(${NAME} INTERFACE $<TARGET_PROPERTY:${NAME}Objects,INTERFACE_COMPILE_DEFINITIONS>)
	set_target_properties(${NAME} PROPERTIES LINKER_LANGUAGE CXX BUILD_RPATH_USE_ORIGIN ON)
	if(TARGET ${NAME}Generated)
		add_dependencies(${NAME} ${NAME}Generated)
	endif()
	set_property(GLOBAL APPEND PROPERTY QUILLON_MODULES ${NAME})
endfunction()

# quillon_specs(<name> FOLDER <dir>): the module once more, with the automation specs of its Private/Tests inside, as
# the engine's editor build has them. It goes into a folder of its own, so that the program never loads it in the plain
# module's place.
function(quillon_specs NAME)
	cmake_parse_arguments(ARG "" "FOLDER" "" ${ARGN})
	file(GLOB sources CONFIGURE_DEPENDS ${ARG_FOLDER}/Private/Tests/*.cpp)
	add_library(${NAME}SpecObjects OBJECT ${sources})
	set_target_properties(${NAME}SpecObjects PROPERTIES CXX_STANDARD 14)
	target_compile_options(${NAME}SpecObjects PRIVATE ${QUILLON_WARNINGS} -fno-rtti -fno-exceptions)
	target_compile_definitions(${NAME}SpecObjects PRIVATE WITH_DEV_AUTOMATION_TESTS=1)
	target_include_directories(${NAME}SpecObjects PRIVATE ${ARG_FOLDER}/Private ${ARG_FOLDER}/Private/Tests)
	target_link_libraries(${NAME}SpecObjects PUBLIC ${NAME} Automation)
	add_library(${NAME}WithSpecs SHARED)
	target_link_libraries(${NAME}WithSpecs PRIVATE ${NAME}Objects ${NAME}SpecObjects)
	set_target_properties(${NAME}WithSpecs PROPERTIES OUTPUT_NAME ${NAME} LINKER_LANGUAGE CXX
		LIBRARY_OUTPUT_DIRECTORY ${QUILLON_BINARIES}/Specs BUILD_RPATH_USE_ORIGIN ON)
endfunction()

# quillon_test(<name> FOLDER <dir> LINKS <targets>...): one GoogleTest program from a folder of tests.
function(quillon_test NAME)
	cmake_parse_arguments(ARG "" "FOLDER" "LINKS" ${ARGN})
	file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${ARG_FOLDER}/*.cpp)
	if(NOT sources)
		return()
	endif()
	foreach(link IN LISTS ARG_LINKS)
		if(NOT TARGET ${link} AND NOT link MATCHES "::")
			message(STATUS "${NAME} left out: ${link} has no sources yet")
			return()
		endif()
	endforeach()
	add_executable(${NAME} ${sources})
	set_target_properties(${NAME} PROPERTIES CXX_STANDARD 17)
	target_compile_options(${NAME} PRIVATE ${QUILLON_WARNINGS})
	if(QUILLON_SANITIZE)
		# GCC warns of this in the standard library's own code once it is instrumented (regular expressions, for one).
		target_compile_options(${NAME} PRIVATE -Wno-maybe-uninitialized)
	endif()
	target_include_directories(${NAME} PRIVATE ${ARG_FOLDER})
	# Tests may declare reflected classes of their own.
	file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${ARG_FOLDER}/*.h)
	quillon_reflect(${NAME} ${NAME} ${headers})
	target_link_libraries(${NAME} PRIVATE ${ARG_LINKS} rapidcheck GTest::gtest GTest::gmock Threads::Threads)
	set_property(GLOBAL APPEND PROPERTY QUILLON_TEST_PROGRAMS ${NAME})
endfunction()
