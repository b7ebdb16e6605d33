# One target carries the language level, the warnings and the hardening; every target of ours links it.
add_library(tafelquell_strenge INTERFACE)
target_compile_features(tafelquell_strenge INTERFACE cxx_std_20)
target_compile_definitions(tafelquell_strenge INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_CONTEXTLESS_CONNECT QT_DISABLE_DEPRECATED_BEFORE=0x060400
  $<$<CXX_COMPILER_ID:GNU>:_GLIBCXX_ASSERTIONS>)
target_compile_options(tafelquell_strenge INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
  -Wcast-qual -Wunused -Wnull-dereference -Wimplicit-fallthrough -fstack-protector-strong)
target_link_options(tafelquell_strenge INTERFACE -Wl,-z,relro,-z,now)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported()
