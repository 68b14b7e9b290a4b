# Checks the dynamic symbol table of the installed library: a host sees the product and the
# part of the foundation it calls, derives from or implements, and no internal of the geometry,
# platform or raster libraries.
#   cmake -DLIBRARY=.../libKestoTool.so -P ExportedSymbols.cmake
cmake_minimum_required(VERSION 3.25)

# What hosts and back ends use of each foundation namespace (classes and free functions).
set(public_KestoPlatform
  CObject CCmdTarget CCmdUI CWnd CDialog CEdit CButton CStatic CComboBox CListItems CSliderCtrl
  CCheckBox CSpinButtonCtrl CRect CString CResourceModule CXTPCommandBars CXTPControl CXTPControlButton
  CXTPControlPopup CXTPControlSplitButtonPopup CXTPControlEdit CXTPControlComboBox
  CXTPControlPopupColor CXTPImageManager HeadlessBackend Headless ManualClock WindowBackend
  WindowPeer Backend SetBackend ScreenMetrics)
set(public_Kesto2D K2DDblPoint K2DArrayPoint K2DCurve K2DLtGeneral KCAngle RoundHalfAwayFromZero MulDiv
  SaturateToRange RoundToRange)
set(public_KestoRaster Path PreparedPaint Render RenderCoverage CompositeOver)
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
