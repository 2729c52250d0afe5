# gabarito_wasm_module(TARGET NAME): TARGET becomes NAME.wasm, which brings no script of its own; web/src/module.ts
# loads it.
function(gabarito_wasm_module target name)
  target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/wasm/trimmings.cpp)
  gabarito_options(${target})
  set_target_properties(${target} PROPERTIES OUTPUT_NAME ${name} SUFFIX .wasm)
  target_link_options(${target} PRIVATE --no-entry -Oz -fwasm-exceptions -flto -sALLOW_MEMORY_GROWTH
                      -sINITIAL_MEMORY=2MB -sTOTAL_STACK=256KB -sMALLOC=emmalloc -sERROR_ON_UNDEFINED_SYMBOLS=0 -sWARN_ON_UNDEFINED_SYMBOLS=0)
endfunction()
