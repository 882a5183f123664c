# Proves the arrows of the design: a folder includes from itself and from folders below it, never from one
# beside or above it, and only the Qt toolkit and the window that stands on it name a toolkit header.
# Run as: cmake -D ROOT=<repository> -P CheckArrows.cmake

# From the ground up; the folders of one line stand beside each other.
set(storeys
    "QuorIniFile"
    "QuorRegistryII"
    "QuorConversions/resources"
    "QuorConversions/platform"
    "QuorConversions/controls"
    "QuorConversions/core"
    "QuorConversions/rtd|QuorConversions/thermistor|QuorConversions/polynomial|QuorConversions/thermocouple"
    "QuorConversions/dialogs"
    "QuorConversions"
    "QuorProbeFile"
    "QuorConversions/qt" # what the Qt toolkit has for hosts
    "toolkits/win32"
    "component|toolkits/scripted|toolkits/qt"
    "apps/quorconv|apps/probe-setup"
    "apps/probe-edit")
set(toolkit_header "^(Q[A-Z][A-Za-z]*|Qt[A-Za-z]*/.*|gtk/.*|wx/.*|windows\\.h)$")

set(folders "")
set(level 0)
foreach(storey IN LISTS storeys)
    string(REPLACE "|" ";" beside "${storey}")
    foreach(folder IN LISTS beside)
        list(APPEND folders ${folder})
        set(level_of_${folder} ${level})
    endforeach()
    math(EXPR level "${level} + 1")
endforeach()

# The innermost folder of the list that holds `path`, or nothing.
function(folder_of path result)
    set(found "")
    foreach(folder IN LISTS folders)
        string(LENGTH "${folder}" length)
        string(LENGTH "${found}" best)
        string(FIND "${path}" "${folder}/" at)
        if(at EQUAL 0 AND length GREATER best)
            set(found ${folder})
        endif()
    endforeach()
    set(${result} "${found}" PARENT_SCOPE)
endfunction()

set(problems "")
set(checked 0)
foreach(top IN ITEMS QuorIniFile QuorRegistryII QuorConversions QuorProbeFile component toolkits apps)
    file(GLOB_RECURSE sources RELATIVE ${ROOT} ${ROOT}/${top}/*.h ${ROOT}/${top}/*.cpp ${ROOT}/${top}/*.def)
    foreach(source IN LISTS sources)
        math(EXPR checked "${checked} + 1")
        folder_of(${source} from)
        if(NOT from)
            list(APPEND problems "${source}: stands in a folder that has no storey here")
        endif()
        file(STRINGS ${ROOT}/${source} includes REGEX "^[ \t]*#[ \t]*include")
        foreach(line IN LISTS includes)
            string(REGEX REPLACE "^[^<\"]*[<\"]([^>\"]*)[>\"].*$" "\\1" header "${line}")
            # What asks the system, not its windows; and the toolkit of its windows.
            if(header STREQUAL "windows.h" AND source MATCHES "(Windows\\.cpp$|^toolkits/win32/)")
                continue()
            endif()
            if(header MATCHES "${toolkit_header}" AND NOT source MATCHES "^(toolkits/qt|apps/probe-setup)/")
                list(APPEND problems "${source}: includes the toolkit header ${header}")
            endif()
            folder_of(${header} to)
            if(header MATCHES "/Export\\.h$") # generated; it stands at the root of each library for all its folders
                continue()
            endif()
            if(header MATCHES "^(Quor[A-Za-z]+)/(.*/)?(detail|dialogs)/")
                set(library ${CMAKE_MATCH_1})
                if(NOT source MATCHES "^${library}/")
                    list(APPEND problems "${source}: includes ${header}, which is internal to its library")
                endif()
            endif()
            if(to AND NOT to STREQUAL from AND NOT level_of_${to} LESS level_of_${from})
                list(APPEND problems "${source}: includes ${header}, which stands beside or above it")
            endif()
        endforeach()
    endforeach()
endforeach()
if(problems)
    list(JOIN problems "\n" problems)
    message(NOTICE "${problems}")
    message(FATAL_ERROR "The arrows of the design are broken.")
endif()
if(checked EQUAL 0)
    message(FATAL_ERROR "No sources found below ${ROOT}")
endif()
message(STATUS "${checked} sources: no include runs upwards")
