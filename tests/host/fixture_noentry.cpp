// Loads like any shared library, but offers no makeButtonPlugin.
extern "C" __attribute__((visibility("default"))) int makeSomethingElse()
{
    return 0;
}
