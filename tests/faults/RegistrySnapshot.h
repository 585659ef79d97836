// Brings the sandbox's registry back to what it was, after a session has written to it.
#pragma once

// Keeps a copy of everything below HKEY_LOCAL_MACHINE\SOFTWARE as it is at construction. The
// sandbox must live longer.
class CRegistrySnapshot
{
public:
    CRegistrySnapshot();
    CRegistrySnapshot(const CRegistrySnapshot&) = delete;
    CRegistrySnapshot& operator=(const CRegistrySnapshot&) = delete;

    void Restore() const;
};
