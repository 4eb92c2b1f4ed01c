// For builds that look for leaks; nothing calls it in others.

extern "C" const char* __lsan_default_options();

const char* __lsan_default_options() {
    return "suppressions=" WXBRG_FOREIGN_LEAKS ":print_suppressions=0";
}
