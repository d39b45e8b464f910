# Fails unless the import library offers ConvertFile and ConvertFile2 alone, under the names that a compiler of the
# width BITS gives to C functions.
# To be run as: cmake -DOBJDUMP=... -DBITS=32|64 -DLIBRARY=... -P CheckImportLibrary.cmake
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND "${OBJDUMP}" -t "${LIBRARY}" OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
set(underscore "")
if(BITS EQUAL 32)
    set(underscore _)
endif()
string(REGEX MATCHALL "__imp_[^ \n]+" offered "${symbols}")
list(SORT offered)
set(expected "__imp_${underscore}ConvertFile;__imp_${underscore}ConvertFile2")
if(NOT offered STREQUAL expected)
    message(FATAL_ERROR "${LIBRARY} offers \"${offered}\" instead of \"${expected}\"")
endif()
