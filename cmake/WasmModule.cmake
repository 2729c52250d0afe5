# gabarito_wasm_module(TARGET NAME [PAGE_NUMBERS] [OWN_EXCEPTIONS]): TARGET becomes NAME.wasm, which brings no script
# of its own; web/src/module.ts loads it. With PAGE_NUMBERS the page converts numbers to digits and back; with
# OWN_EXCEPTIONS all that it catches is caught by the type thrown, or by `...`.
function(gabarito_wasm_module target name)
  target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/wasm/trimmings.cpp)
  if("PAGE_NUMBERS" IN_LIST ARGN)
    target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/wasm/numbers.cpp)
  endif()
  if("OWN_EXCEPTIONS" IN_LIST ARGN)
    # The optimiser across translation units takes the tables of types apart, and fails at these.
    set(exceptions ${PROJECT_SOURCE_DIR}/cmake/wasm/exceptions.cpp)
    target_sources(${target} PRIVATE ${exceptions})
    set_source_files_properties(${exceptions} PROPERTIES COMPILE_OPTIONS
                                "-fno-virtual-function-elimination;-fno-whole-program-vtables;-fno-lto")
  endif()
  gabarito_options(${target})
  set_target_properties(${target} PROPERTIES OUTPUT_NAME ${name} SUFFIX .wasm)
  target_link_options(${target} PRIVATE --no-entry -Os -fwasm-exceptions -flto -sMALLOC=emmalloc
                      -sALLOW_MEMORY_GROWTH -sINITIAL_MEMORY=2MB -sTOTAL_STACK=256KB -sERROR_ON_UNDEFINED_SYMBOLS=0
                      -sWARN_ON_UNDEFINED_SYMBOLS=0)
endfunction()
