// What the shell program was asked to do on its command line.
#pragma once

#include <string>
#include <vector>

// A view to take a picture of, and the file to write it to.
struct PictureWish
{
    std::wstring View;
    std::wstring File;
};

struct Options
{
    // A dialog to open directly, by the name that ./run uses; empty for the home screen.
    std::wstring Dialog;
    // Where the outcome of that dialog is written.
    std::wstring Report;
    // Pictures to take instead of showing the device, in this order.
    std::vector<PictureWish> Pictures;
    // Put the sample data on the device and leave.
    bool Seed = false;
    // Forget the device's state first.
    bool Fresh = false;
    // What was wrong; empty when all arguments were understood.
    std::wstring Error;
};

// Reads the arguments behind the program's name.
Options ReadOptions(const std::vector<std::wstring>& arguments);
