# Fills in a template for the place where the program is installed. Used when the build is configured
# and again when it is installed, since only then the prefix is certain.

# The path as a part of a command in a desktop entry or a service of the bus.
function(corvane_command_of program result)
    if(program MATCHES "^[A-Za-z0-9_@+=:,./-]+$")
        set(${result} "${program}" PARENT_SCOPE)
        return()
    endif()
    # Quoted as a command, and then as a text of the entry.
    string(REGEX REPLACE "([\"`$\\])" "\\\\\\1" quoted "${program}")
    string(REPLACE "\\" "\\\\" quoted "${quoted}")
    string(REPLACE "%" "%%" quoted "${quoted}")
    set(${result} "\"${quoted}\"" PARENT_SCOPE)
endfunction()

function(corvane_fill_in template filled folder)
    set(CORVANE_PROGRAM "${folder}/corvane")
    corvane_command_of("${CORVANE_PROGRAM}" CORVANE_COMMAND)
    configure_file(${template} ${filled} @ONLY)
endfunction()
