# Checks the dynamic symbol table of the installed library: a host sees the product and the
# part of the foundation it calls, derives from or implements, and no internal of the geometry,
# platform or raster libraries; and everything the installed headers declare out of line is
# there, so that a host that calls it links.
#   cmake -DLIBRARY=.../libKestoTool.so -DINCLUDE_DIR=.../include -P ExportedSymbols.cmake
cmake_minimum_required(VERSION 3.25)

# What hosts and back ends use of each foundation namespace (classes and free functions).
set(public_KestoPlatform
  CObject CRuntimeClass CCmdTarget CCmdUI CWnd CDialog CEdit CButton CStatic CComboBox CListItems CSliderCtrl
  CCheckBox CSpinButtonCtrl CRect CString CResourceModule CXTPCommandBars CXTPControl CXTPControlButton
  CXTPControlPopup CXTPControlSplitButtonPopup CXTPControlEdit CXTPControlComboBox
  CXTPControlPopupColor CXTPImageManager HeadlessBackend Headless ManualClock WindowBackend
  WindowPeer Backend SetBackend ScreenMetrics DDX_Control DDX_Text)
set(public_Kesto2D K2DDblPoint K2DArrayPoint K2DCurve K2DLtGeneral KCAngle K2DGeometry K2DStraightLine
  RoundHalfAwayFromZero MulDiv MulDivWide ClampToInt RoundHalfUp AddHalfAndTruncate SaturateToRange RoundToRange)
set(public_KestoRaster Affine Path PreparedPaint Render RenderReference RenderCoverage RenderInBands SetRenderThreads
  RenderThreads CompositeOver Straight
  IsaAvailable ActiveIsa SetActiveIsa IsaName)
# A few that a host must find.
set(required KestoTool::Version KestoTool::FillToolFactory::Create KestoTool::Init KestoPlatform::CWnd
  KestoGDI::CFillLinear KestoKernel::SetVerifyHandler)

execute_process(COMMAND nm -D --defined-only -C ${LIBRARY} OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\n" ";" lines "${table}")
set(internal "")
set(names "")
foreach(line IN LISTS lines)
  string(REGEX REPLACE "^[0-9a-f]+ [A-Za-z] " "" symbol "${line}")
  string(REGEX REPLACE "^(typeinfo name for |typeinfo for |vtable for |VTT for |non-virtual thunk to |virtual thunk to |guard variable for )" "" symbol "${symbol}")
  list(APPEND names "${symbol}")
  if(symbol MATCHES "^(KestoPlatform|Kesto2D|KestoRaster)::([A-Za-z_][A-Za-z0-9_]*)")
    if(NOT CMAKE_MATCH_2 IN_LIST public_${CMAKE_MATCH_1})
      list(APPEND internal "${symbol}")
    endif()
  endif()
endforeach()
if(internal)
  list(JOIN internal "\n  " text)
  message(FATAL_ERROR "internals exported by ${LIBRARY}:\n  ${text}")
endif()
foreach(name IN LISTS required)
  string(REGEX REPLACE "([][+.*()^$])" "\\\\\\1" pattern "${name}")
  set(found ${names})
  list(FILTER found INCLUDE REGEX "^${pattern}")
  if(NOT found)
    message(FATAL_ERROR "${name} is not exported by ${LIBRARY}")
  endif()
endforeach()

# The declarations of the installed headers (the Qt back end's are a static library's). In this
# code namespaces are not indented: a line that starts a free function's declaration starts at
# the line's start, and a class's members are four spaces in. A free function must be in the
# table; a class with members defined out of line must be exported whole.
if(NOT INCLUDE_DIR)
  return()
endif()
string(REGEX REPLACE "\\[abi:[a-z0-9]+\\]" "" plain "${table}")
file(GLOB_RECURSE headers RELATIVE ${INCLUDE_DIR} ${INCLUDE_DIR}/kestotool/*.h)
list(FILTER headers EXCLUDE REGEX "^kestotool/qt/")
set(unexported "")
foreach(header IN LISTS headers)
  file(READ ${INCLUDE_DIR}/${header} text)
  string(REGEX REPLACE "//[^\n]*" "" text "${text}")
  string(REGEX REPLACE "/\\*([^*]|\\*+[^*/])*\\*+/" "" text "${text}")
  string(REPLACE ";" "@" text "${text}")
  string(REPLACE "\n" ";" lines "${text}")
  set(namespaces "")      # the namespaces around, innermost last
  set(class "")           # the class being read, unless it is exported or a template
  set(declaration "")     # a declaration read so far, over several lines
  set(after_template OFF)
  foreach(line IN LISTS lines)
    if(declaration STREQUAL "")
      if(line MATCHES "^namespace ([A-Za-z0-9_:]+) *{")
        list(APPEND namespaces ${CMAKE_MATCH_1})
        continue()
      elseif(line MATCHES "^} *$")
        list(POP_BACK namespaces)
        continue()
      elseif(line MATCHES "^(class|struct) ([A-Za-z0-9_]+)[^@]*$")
        set(name ${CMAKE_MATCH_2})
        if(NOT after_template AND NOT line MATCHES "KESTO_API")
          set(class ${name})
        endif()
        continue()
      elseif(line MATCHES "^}@")
        set(class "")
        continue()
      endif()
      set(after_template OFF)
      if(line MATCHES "^template")
        set(after_template ON)
        continue()
      endif()
      # A free function at the line's start, or a member four spaces in; never a definition.
      if(line MATCHES "^[A-Za-z_]" AND line MATCHES "\\(" AND NOT line MATCHES "^(inline|constexpr|using|typedef|static|extern|friend|enum|return) ")
        set(declaration "${line}")
        set(kind free)
      elseif(class AND line MATCHES "^    [A-Za-z_~]" AND line MATCHES "\\(" AND NOT line MATCHES "^    (friend|using|typedef|return|static constexpr|constexpr|template|enum) ")
        set(declaration "${line}")
        set(kind member)
      else()
        continue()
      endif()
    else()
      string(APPEND declaration " ${line}")
    endif()
    if(declaration MATCHES "[{}]" OR declaration MATCHES "= *(default|delete|0) *@" OR declaration MATCHES "\\(\\*")
      set(declaration "")
      continue()
    endif()
    if(NOT declaration MATCHES "@ *$")
      continue() # goes on on the next line
    endif()
    string(REGEX MATCH "(operator[^(]+|[~A-Za-z_][A-Za-z0-9_]*) *\\(" name "${declaration}")
    string(REGEX REPLACE " *\\($" "" name "${name}")
    list(JOIN namespaces "::" namespace)
    if(kind STREQUAL "free")
      string(REGEX REPLACE "([][+.*()^$|])" "\\\\\\1" pattern "${namespace}::${name}(")
      if(NOT plain MATCHES "${pattern}")
        list(APPEND unexported "${header}: ${namespace}::${name}")
      endif()
    else()
      list(APPEND unexported "${header}: class ${namespace}::${class} (its ${name} is defined out of line)")
      set(class "") # once per class
    endif()
    set(declaration "")
  endforeach()
endforeach()
if(unexported)
  list(REMOVE_DUPLICATES unexported)
  list(JOIN unexported "\n  " text)
  message(FATAL_ERROR "declared in installed headers but not exported by ${LIBRARY}:\n  ${text}")
endif()
