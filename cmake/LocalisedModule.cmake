# Makes the C++ source of a localised resource module from a gettext translation file: a
# string's msgctxt is its string id, its msgid the library's built-in text for that id, its
# msgstr the translation; a dialog text's msgctxt is "dialog", its msgid a wide literal of the
# text sources: a caption or control text of the built-in dialog templates, the name of a kind of
# fill (the editors' type box) or an undo name. Fails when a string id or a dialog text has no
# translation, when an entry's msgid is no longer the built-in text (the English changed:
# translate again), or when a translation loses a placeholder (%=Name%), a |key| mark or one of
# the \n-separated parts.
# Run with -DPO_FILE=... -DSTRING_TABLE=<StringTable.cpp> -DTEXT_SOURCES=<a.cpp|b.cpp|...>
#          -DOUTPUT=<generated .cpp>
cmake_minimum_required(VERSION 3.25) # the script's policies: IN_LIST, quoted arguments
file(STRINGS ${STRING_TABLE} table REGEX "^ *\\{[0-9]+, L\".*\"\\},$" ENCODING UTF-8)
set(ids "")
foreach(line IN LISTS table)
  string(REGEX MATCH "^ *\\{([0-9]+), L\"(.*)\"\\},$" _ "${line}")
  list(APPEND ids ${CMAKE_MATCH_1})
  set(builtin_${CMAKE_MATCH_1} "${CMAKE_MATCH_2}")
endforeach()

string(REPLACE "|" ";" text_sources "${TEXT_SOURCES}")
set(dialog_texts "")
foreach(source IN LISTS text_sources)
  file(READ ${source} text)
  string(REGEX MATCHALL "L\"[^\"]+\"" literals "${text}")
  list(APPEND dialog_texts ${literals})
endforeach()
list(TRANSFORM dialog_texts REPLACE "^L\"(.*)\"$" "\\1")
list(REMOVE_DUPLICATES dialog_texts)

file(STRINGS ${PO_FILE} po ENCODING UTF-8)
set(problems "")
set(entries "")
set(id "")
foreach(line IN LISTS po)
  if(line MATCHES "^msgctxt \"([0-9]+|dialog)\"$")
    set(id ${CMAKE_MATCH_1})
  elseif(id AND line MATCHES "^msgid \"(.*)\"$")
    set(source "${CMAKE_MATCH_1}")
  elseif(id AND line MATCHES "^msgstr \"(.*)\"$")
    set(text "${CMAKE_MATCH_1}")
    if(id STREQUAL "dialog")
      if(NOT source IN_LIST dialog_texts)
        string(APPEND problems "  dialog text \"${source}\": no dialog has it\n")
      elseif(text STREQUAL "")
        string(APPEND problems "  dialog text \"${source}\": no translation\n")
      else()
        string(MD5 key "${source}")
        set(dialog_${key} "${text}")
      endif()
    elseif(NOT DEFINED builtin_${id})
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
set(dialog_rows "")
list(SORT dialog_texts) # the C locale's order, which wcscmp keeps for these ASCII texts
foreach(source IN LISTS dialog_texts)
  string(MD5 key "${source}")
  if(NOT DEFINED dialog_${key})
    string(APPEND problems "  dialog text \"${source}\": no translation\n")
  endif()
  string(APPEND dialog_rows "    {L\"${source}\", L\"${dialog_${key}}\"},\n")
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
#include <cwchar>
#include <iterator>

namespace {

struct Entry {
    int id;
    const wchar_t* text;
};

struct DialogText {
    const wchar_t* english;
    const wchar_t* text;
};

// clang-format off
constexpr Entry kTexts[] = {
@rows@};

constexpr DialogText kDialogTexts[] = {
@dialog_rows@};
// clang-format on

} // namespace

extern "C" KESTO_API const wchar_t* KestoToolLocString(int id)
{
    const auto it = std::lower_bound(std::begin(kTexts), std::end(kTexts), id,
                                     [](const Entry& e, int key) { return e.id < key; });
    return it != std::end(kTexts) && it->id == id ? it->text : nullptr;
}

extern "C" KESTO_API const wchar_t* KestoToolLocDialogText(const wchar_t* english)
{
    const auto it = std::lower_bound(std::begin(kDialogTexts), std::end(kDialogTexts), english,
                                     [](const DialogText& e, const wchar_t* key) { return std::wcscmp(e.english, key) < 0; });
    return it != std::end(kDialogTexts) && std::wcscmp(it->english, english) == 0 ? it->text : nullptr;
}
]=] @ONLY)
