# Makes the C++ source of a localised resource module from a gettext translation file: each
# entry's msgctxt is a string id, its msgid the library's built-in text for that id, its msgstr
# the translation. Fails when an id of the built-in string table has no translation, when an
# entry's msgid is no longer the built-in text (the English changed: translate again), or when a
# translation loses a placeholder (%=Name%), a |key| mark or one of the \n-separated parts.
# Run with -DPO_FILE=... -DSTRING_TABLE=<StringTable.cpp> -DOUTPUT=<generated .cpp>
file(STRINGS ${STRING_TABLE} table REGEX "^ *\\{[0-9]+, L\".*\"\\},$" ENCODING UTF-8)
set(ids "")
foreach(line IN LISTS table)
  string(REGEX MATCH "^ *\\{([0-9]+), L\"(.*)\"\\},$" _ "${line}")
  list(APPEND ids ${CMAKE_MATCH_1})
  set(builtin_${CMAKE_MATCH_1} "${CMAKE_MATCH_2}")
endforeach()

file(STRINGS ${PO_FILE} po ENCODING UTF-8)
set(problems "")
set(entries "")
set(id "")
foreach(line IN LISTS po)
  if(line MATCHES "^msgctxt \"([0-9]+)\"$")
    set(id ${CMAKE_MATCH_1})
  elseif(id AND line MATCHES "^msgid \"(.*)\"$")
    set(source "${CMAKE_MATCH_1}")
  elseif(id AND line MATCHES "^msgstr \"(.*)\"$")
    set(text "${CMAKE_MATCH_1}")
    if(NOT DEFINED builtin_${id})
      string(APPEND problems "  ${id}: no such id in the string table\n")
    elseif(NOT source STREQUAL builtin_${id})
      string(APPEND problems "  ${id}: the English text changed, translate it again: ${builtin_${id}}\n")
    elseif(text STREQUAL "")
      string(APPEND problems "  ${id}: no translation\n")
    else()
      foreach(side source text)
        string(REGEX MATCHALL "%=[A-Za-z]+%" ${side}_marks "${${side}}")
        string(REGEX MATCHALL "\\|" ${side}_bars "${${side}}")
        string(REGEX MATCHALL "\\\\n" ${side}_parts "${${side}}")
        list(LENGTH ${side}_bars ${side}_bars)
        list(LENGTH ${side}_parts ${side}_parts)
      endforeach()
      if(NOT source_marks STREQUAL text_marks OR NOT source_bars EQUAL text_bars
         OR NOT source_parts EQUAL text_parts)
        string(APPEND problems "  ${id}: placeholders, |key| marks or \\n parts differ: ${text}\n")
      endif()
      set(translated_${id} "${text}")
      list(APPEND entries ${id})
    endif()
    set(id "")
  endif()
endforeach()
foreach(id IN LISTS ids)
  if(NOT DEFINED translated_${id})
    string(APPEND problems "  ${id}: no translation (${builtin_${id}})\n")
  endif()
endforeach()
if(problems)
  message(FATAL_ERROR "${PO_FILE}:\n${problems}")
endif()

list(SORT entries COMPARE NATURAL)
get_filename_component(po_name ${PO_FILE} NAME)
set(rows "")
foreach(id IN LISTS entries)
  string(APPEND rows "    {${id}, L\"${translated_${id}}\"},\n")
endforeach()
file(CONFIGURE OUTPUT ${OUTPUT} CONTENT [=[
// The localised resource module's texts, made from @po_name@ by cmake/LocalisedModule.cmake.
#include "kestotool/platform/Export.h"

#include <algorithm>
#include <iterator>

namespace {

struct Entry {
    int id;
    const wchar_t* text;
};

// clang-format off
constexpr Entry kTexts[] = {
@rows@};
// clang-format on

} // namespace

extern "C" KESTO_API const wchar_t* KestoToolLocString(int id)
{
    const auto it = std::lower_bound(std::begin(kTexts), std::end(kTexts), id,
                                     [](const Entry& e, int key) { return e.id < key; });
    return it != std::end(kTexts) && it->id == id ? it->text : nullptr;
}
]=] @ONLY)
