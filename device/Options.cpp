#include "device/Options.h"

namespace
{

// Takes the argument behind position `i`; false, with the error noted, when there is none.
bool TakeNext(const std::vector<std::wstring>& arguments, size_t& i, std::wstring& value,
              std::wstring& error)
{
    if (i + 1 >= arguments.size())
    {
        error = arguments[i] + L" needs a value";
        return false;
    }
    value = arguments[++i];
    return true;
}

} // namespace

Options ReadOptions(const std::vector<std::wstring>& arguments)
{
    Options options;
    for (size_t i = 0; i < arguments.size() && options.Error.empty(); ++i)
    {
        const std::wstring& name = arguments[i];
        if (name == L"--seed")
            options.Seed = true;
        else if (name == L"--fresh")
            options.Fresh = true;
        else if (name == L"--dialog")
            TakeNext(arguments, i, options.Dialog, options.Error);
        else if (name == L"--report")
            TakeNext(arguments, i, options.Report, options.Error);
        else if (name == L"--picture")
        {
            PictureWish wish;
            if (TakeNext(arguments, i, wish.View, options.Error) &&
                TakeNext(arguments, i, wish.File, options.Error))
                options.Pictures.push_back(wish);
        }
        else
            options.Error = L"unknown option " + name;
    }
    return options;
}
