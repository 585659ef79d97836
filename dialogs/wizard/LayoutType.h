// How the Now screen presents its plug-ins: the choice that the install wizard stores, and who is
// told of it.
#pragma once

enum class LayoutType
{
    Classic,
    Professional
};

// The stored choice; Classic when there is none or an unknown one.
LayoutType LoadLayoutType();

// Stores the choice. A failure is not reported: the next start shows the old one.
void SaveLayoutType(LayoutType type);

// Tells the Now screen, if it runs, that another choice may have been stored. Doesn't wait for it.
void AnnounceLayoutType();
