// The sanitizers end the program when a request is larger than they can serve. Here such requests are tests.
// The names are the sanitizers' own. NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" const char* __asan_default_options();
extern "C" const char* __tsan_default_options();

extern "C" const char* __asan_default_options()
{
    return "allocator_may_return_null=1";
}

extern "C" const char* __tsan_default_options()
{
    return "allocator_may_return_null=1";
}
// NOLINTEND(bugprone-reserved-identifier)
