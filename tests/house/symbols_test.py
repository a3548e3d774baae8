"""The check of the symbols tells ours from those of others, by their mangled names."""

import unittest

import symbols

OURS = [
    "_ZN7physics6Volume7destroyEv",                                    # physics::Volume::destroy()
    "_ZNK7physics6Volume4nameB5cxx11Ev",                               # physics::Volume::name() const
    "_ZTIN7physics6VolumeE",                                           # typeinfo for physics::Volume
    "_ZTSN7physics6VolumeE",                                           # its name
    "_ZTVN7physics6VolumeE",                                           # vtable for physics::Volume
    "_ZGVZN7physics4nameEvE5table",                                    # guard of a local static
    "_ZThn8_N7physics6VolumeD0Ev",                                     # non-virtual thunk
    "_ZNK7physics7Physics10typeToNameINS_10VolumeTypeEEESsT_",         # a member template
    "_ZN7physicslsERSoNS_4SideE",                                      # physics::operator<<
]
FOREIGN = [
    "_ZNSt6vectorIPN7physics6VolumeESaIS2_EE9push_backEOS2_",          # std::vector<physics::Volume*>::push_back
    "_ZN3gtm8Interior7destroyEv",
    "_Z6helperv",
    "_ZN13physics_other3runEv",
    "_ZTISt9exception",
    "main",
]


class SymbolsTest(unittest.TestCase):
    def test_everything_of_the_namespace_belongs_to_it(self):
        self.assertEqual(symbols.foreign_definitions(OURS, "physics"), [])

    def test_everything_else_is_foreign_even_when_it_mentions_the_namespace(self):
        self.assertEqual(symbols.foreign_definitions(OURS + FOREIGN, "physics"), FOREIGN)

    def test_only_type_information_of_a_foreign_class_may_be_shown(self):
        shown = ["_ZTIN3gtm6RegionE", "_ZTSN3gtm6RegionE", "_ZTVN3gtm6RegionE", "_ZTIN3foo6RegionE"]

        self.assertEqual(symbols.foreign_definitions(shown, "physics", ["gtm"]), shown[2:])

    def test_a_library_may_want_the_runtime_and_the_foreign_namespace_it_names(self):
        wanted = ["_Znwm", "memcpy", "_ZN3gtm8Interior7destroyEv", "_ZTIN3gtm6RegionE"]

        self.assertEqual(symbols.foreign_wishes(wanted, ["gtm"], {"_Znwm", "memcpy"}), [])

    def test_a_library_may_not_want_anything_else(self):
        wanted = ["_ZN13LocationModelC1Ev", "json_read", "_ZN3foo3barEv"]

        self.assertEqual(symbols.foreign_wishes(wanted, ["gtm"], {"memcpy"}), wanted)

    def test_the_runtime_is_read_from_what_the_loader_finds(self):
        listed = ("\tlinux-vdso.so.1 (0x1)\n\tlibLocationModel.so.0 => /b/libLocationModel.so.0 (0x2)\n"
                  "\tlibstdc++.so.6 => /lib/libstdc++.so.6 (0x3)\n\tlibc.so.6 => /lib/libc.so.6 (0x4)\n")

        self.assertEqual(symbols.RUNTIME.findall(listed), ["/lib/libstdc++.so.6", "/lib/libc.so.6"])


if __name__ == "__main__":
    unittest.main()
