# Writes qrbtool's manual page from its own help: the overview of `qrbtool --help`, then each
# command's `qrbtool help COMMAND` page with its options. Run at build time:
#   cmake -DQRBTOOL=path/to/qrbtool -DOUTPUT=qrbtool.1 -P ManPage.cmake
# The text is walked line by line with string(FIND), never split into a CMake list, so the
# brackets and semicolons of the help stay as they are.

cmake_minimum_required(VERSION 3.25)

function(run_tool out)
  execute_process(COMMAND "${QRBTOOL}" ${ARGN} OUTPUT_VARIABLE text RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "qrbtool ${ARGN} gave ${result}")
  endif()
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

# Help text to roff: backslashes and dashes escaped, a leading control character neutralised.
function(roff out text)
  string(STRIP "${text}" text)
  string(REPLACE "\\" "\\e" text "${text}")
  string(REPLACE "-" "\\-" text "${text}")
  if(text MATCHES "^[.']")
    set(text "\\&${text}")
  endif()
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

# Takes the first line off `text_var`, into `line_var`; `more_var` is false when none was left.
function(next_line text_var line_var more_var)
  set(text "${${text_var}}")
  if(text STREQUAL "")
    set(${more_var} FALSE PARENT_SCOPE)
    return()
  endif()
  string(FIND "${text}" "\n" end)
  if(end EQUAL -1)
    set(line "${text}")
    set(text "")
  else()
    string(SUBSTRING "${text}" 0 ${end} line)
    math(EXPR end "${end} + 1")
    string(SUBSTRING "${text}" ${end} -1 text)
  endif()
  set(${line_var} "${line}" PARENT_SCOPE)
  set(${text_var} "${text}" PARENT_SCOPE)
  set(${more_var} TRUE PARENT_SCOPE)
endfunction()

# Option names in bold, the value's name in italics: "-o, --output FILE".
function(option_tag out left)
  string(REGEX MATCH "^((-[-a-zA-Z]+, )*-[-a-zA-Z]+)( (.+))?$" matched "${left}")
  if(NOT matched)
    message(FATAL_ERROR "Unexpected option in the help: '${left}'")
  endif()
  set(value "${CMAKE_MATCH_4}")
  string(REPLACE ", " ";" names "${CMAKE_MATCH_1}")
  set(tags "")
  foreach(name IN LISTS names)
    roff(name "${name}")
    list(APPEND tags "\\fB${name}\\fR")
  endforeach()
  list(JOIN tags ", " tag)
  if(NOT value STREQUAL "")
    roff(value "${value}")
    string(APPEND tag " \\fI${value}\\fR")
  endif()
  set(${out} "${tag}" PARENT_SCOPE)
endfunction()

run_tool(version --version)
string(STRIP "${version}" version)
run_tool(overview --help)

# The overview: usage, the paragraph about the tool, the commands with their summaries.
set(about "")
set(commands "")
set(summaries "")
set(part usage)
set(more TRUE)
while(more)
  next_line(overview line more)
  if(line STREQUAL "Commands:")
    set(part commands)
  elseif(line MATCHES "^Exit codes: ")
    roff(exit_codes "${line}")
  elseif(part STREQUAL "usage" AND line STREQUAL "")
    set(part about)
  elseif(part STREQUAL "about" AND NOT line STREQUAL "")
    roff(line "${line}")
    string(APPEND about "${line}\n")
  elseif(part STREQUAL "commands" AND line MATCHES "^  ([a-z]+) +(.+)$")
    list(APPEND commands "${CMAKE_MATCH_1}")
    roff(summary "${CMAKE_MATCH_2}")
    string(APPEND summaries ".TP\n\\fB${CMAKE_MATCH_1}\\fR\n${summary}\n")
  elseif(part STREQUAL "commands" AND line STREQUAL "")
    set(part done)
  endif()
endwhile()
if(about STREQUAL "" OR commands STREQUAL "" OR NOT exit_codes)
  message(FATAL_ERROR "qrbtool --help has no description, commands or exit codes")
endif()

# Each command: its synopsis, its description's paragraphs, its options.
set(details "")
foreach(command IN LISTS commands)
  run_tool(help help ${command})
  set(part usage)
  set(more TRUE)
  while(more)
    next_line(help line more)
    if(part STREQUAL "usage" AND line MATCHES "^Usage: qrbtool (.+)$")
      roff(synopsis "${CMAKE_MATCH_1}")
      string(APPEND details ".SS \"qrbtool ${synopsis}\"\n")
      set(part description)
    elseif(part STREQUAL "description" AND line STREQUAL "Options:")
      set(part options)
    elseif(part STREQUAL "description" AND line STREQUAL "")
      string(APPEND details ".PP\n")
    elseif(part STREQUAL "description")
      roff(line "${line}")
      string(APPEND details "${line}\n")
    elseif(part STREQUAL "options" AND line MATCHES "^  ")
      # Options are laid out in two columns: 26 characters of names, a space, the text.
      string(SUBSTRING "${line}" 2 26 left)
      string(SUBSTRING "${line}" 29 -1 text)
      string(STRIP "${left}" left)
      option_tag(tag "${left}")
      roff(text "${text}")
      string(APPEND details ".TP\n${tag}\n${text}\n")
    elseif(part STREQUAL "options" AND line STREQUAL "")
      set(part done)
    endif()
  endwhile()
endforeach()

string(REGEX REPLACE "^qrbtool " "" number "${version}")
file(WRITE "${OUTPUT}" ".TH QRBTOOL 1 \"\" \"qrbtool ${number}\" \"User Commands\"
.SH NAME
qrbtool \\- check, compare, upgrade and document Quorin rulebases
.SH SYNOPSIS
.B qrbtool
\\fICOMMAND\\fR [\\fIOPTIONS\\fR] [\\fIARGUMENTS\\fR]
.br
.B qrbtool
\\fB\\-\\-help\\fR | \\fB\\-\\-version\\fR | \\fBhelp\\fR \\fICOMMAND\\fR
.SH DESCRIPTION
${about}.SH COMMANDS
${summaries}.SH \"COMMANDS IN DETAIL\"
${details}.SH \"EXIT STATUS\"
${exit_codes}
")
