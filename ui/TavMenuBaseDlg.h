// CTavMenuBaseDlg: the layer that the menu editor's sub-dialogs share on top of the dialog base.
#pragma once

#include "ui/PPCDialog.h"

// A sub-dialog that remembers whether it ended through its own "Done".
template <class T>
class CTavMenuBaseDlg : public CPPCDialogImpl<T>
{
public:
    DWORD Accepted = 0;

protected:
    // Marks the result as accepted and ends with IDOK.
    void Accept()
    {
        Accepted = 1;
        this->EndWith(IDOK);
    }
};
