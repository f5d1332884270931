# What libchartxml.so shows, and nothing else: the entry points by their list, the C
# functions that the headers for procedures mark, and the C++ names below. Templates of
# the standard library that the compiler instantiates here stay inside, where they
# cannot stand in for those of the program.

# ChartXml and what a program needs beside it: what its operations take and give, data
# sources, settings, the error log and sinks. A header that is installed and declares
# more does so for the types of private members only.
set(EXPORTED_CLASSES
  ChartXml Chart ChartBase ChartString formatSpec
  ChartException ChartErrorHandler KorvaGoToCaller
  KORVA_DataSource KORVA_FortranDictionary ProcedureDataSource
  KORVA_Variable KORVA_Format KORVA_ValueLabelMap
  host::DataSet host::DataError
  host::ChartSink host::FolderSink VarDataProcessor host::ValueColumn
  CmnSys CmnLoc currencyFormat)
set(EXPORTED_CXX_FUNCTIONS
  host::setErrorCallback host::reportError host::takeError
  host::chartSink host::setChartSink host::defaultPageWriter
  host::outputFolder host::setOutputFolder host::setOutputLanguage host::setBootstrapping
  host::setProcessCodePage KORVAMBDefaultCodePage KORVAMBTranscodeGeneric
  KORVAMBStringTruncate_A host::writeText)

file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/backend/chartxml/include/chartxml/*.h)
list(APPEND headers ${CMAKE_SOURCE_DIR}/host/include/host/Korva.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${headers})
set(EXPORTED_C_FUNCTIONS ${ENTRY_POINTS})
set(marked "^(CHARTXML|KORVA)_API [^(]*[ *]([A-Za-z0-9_]+)\\(.*$")
foreach(header ${headers})
  file(STRINGS ${header} lines REGEX "${marked}")
  foreach(line ${lines})
    string(REGEX REPLACE "${marked}" "\\2" name "${line}")
    list(APPEND EXPORTED_C_FUNCTIONS ${name})
  endforeach()
endforeach()
list(REMOVE_DUPLICATES EXPORTED_C_FUNCTIONS)
list(SORT EXPORTED_C_FUNCTIONS)

set(names)
foreach(function ${EXPORTED_C_FUNCTIONS})
  string(APPEND names "    ${function};\n")
endforeach()
string(APPEND names "    extern \"C++\" {\n")
foreach(class ${EXPORTED_CLASSES})
  string(APPEND names "      ${class}::*;\n      \"typeinfo for ${class}\";\n"
    "      \"typeinfo name for ${class}\";\n      \"vtable for ${class}\";\n")
endforeach()
foreach(function ${EXPORTED_CXX_FUNCTIONS})
  string(APPEND names "      ${function}*;\n")
endforeach()
set(EXPORT_MAP ${CMAKE_BINARY_DIR}/exports/chartxml.map)
file(CONFIGURE OUTPUT ${EXPORT_MAP} @ONLY CONTENT
  "{\n  global:\n@names@    };\n  local: *;\n};\n")
foreach(list EXPORTED_C_FUNCTIONS EXPORTED_CLASSES EXPORTED_CXX_FUNCTIONS)
  list(JOIN ${list} "\n" lines)
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/exports/${list}.txt @ONLY CONTENT "@lines@\n")
endforeach()
