# The tests that every family of arrays is put through, and every one of numbers.
zeb_class_templates(
  NUMBER_TESTS tests/arrays/templates/ZEB_T_Bridge_test.mm tests/arrays/templates/ZEB_T_Numbers_test.mm
  TESTS
    tests/arrays/templates/ZEB_T_Differential_test.mm
    tests/arrays/templates/ZEB_T_Samples.hpp
    tests/arrays/templates/ZEB_T_Storage_test.mm
    tests/encoding/templates/ZEB_T_Round_Trip_test.mm)
