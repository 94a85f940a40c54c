# The forms library: all of the project that knows Qt.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Multimedia)

add_library(tessaro_forms STATIC)
set_target_properties(tessaro_forms PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
target_sources(tessaro_forms PRIVATE ${CMAKE_SOURCE_DIR}/resources/tessaro.qrc)
target_link_libraries(tessaro_forms PUBLIC tessaro_logic Qt6::Widgets PRIVATE Qt6::Multimedia)
target_compile_definitions(tessaro_forms PUBLIC
    QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
