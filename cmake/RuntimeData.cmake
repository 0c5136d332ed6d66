# Copies data folders of the source tree beside the executables, refreshed whenever a file changes.
function(pavonel_copy_runtime_data target)
    set(_outputs)
    foreach(_folder IN LISTS ARGN)
        file(GLOB_RECURSE _files CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/${_folder}/*)
        foreach(_file IN LISTS _files)
            set(_out ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${_file})
            add_custom_command(OUTPUT ${_out}
                COMMAND ${CMAKE_COMMAND} -E copy_if_different ${PROJECT_SOURCE_DIR}/${_file} ${_out}
                DEPENDS ${PROJECT_SOURCE_DIR}/${_file}
                COMMENT "Copying ${_file}" VERBATIM)
            list(APPEND _outputs ${_out})
        endforeach()
    endforeach()
    add_custom_target(${target} ALL DEPENDS ${_outputs})
endfunction()
