/* The least that a DLL can be: what loading the module is measured against. */
__declspec(dllexport) int Nothing(void);

int Nothing(void)
{
    return 0;
}
