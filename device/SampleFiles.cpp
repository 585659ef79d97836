#include "device/SampleFiles.h"

namespace sample
{
namespace
{

// Notes and Task Manager lead to programs that every desktop system has; of the others, the sample
// device has the shortcuts alone.
constexpr StartMenuFile kFiles[] = {
    {L"Messaging.lnk", L"\\Windows\\Messaging.exe", 104},
    {L"Calendar.lnk", L"\\Windows\\Calendar.exe", 103},
    {L"Programs\\Alarm Clock.lnk", L"\\Windows\\Alarm.exe", 139},
    {L"Programs\\Calculator.lnk", L"\\Windows\\Calculator.exe", 120},
    {L"Programs\\File Manager.lnk", L"\\Windows\\FileManager.exe", 119},
    {L"Programs\\Help.lnk", L"\\Windows\\Help.exe", 137},
    {L"Programs\\Notes.lnk", L"\\Windows\\notepad.exe", 109},
    {L"Programs\\Route Planner.lnk", L"\\Program Files\\Route Planner\\Planner.exe", 138},
    {L"Programs\\Search.lnk", L"\\Windows\\Search.exe", 121},
    {L"Programs\\Tasks.lnk", L"\\Windows\\Tasks.exe", 139},
    {L"Programs\\Web Browser.lnk", L"\\Windows\\Browser.exe", 124},
    {L"Programs\\Connect\\Chat.lnk", L"\\Program Files\\Chat\\Chat.exe", 125},
    {L"Programs\\Connect\\Modem.lnk", L"\\Windows\\Modem.exe", 127},
    {L"Programs\\Connect\\Wireless.lnk", L"\\Windows\\Wireless.exe", 126},
    {L"Programs\\Games\\Brick Wall.lnk", L"\\Program Files\\Games\\Bricks.exe", 117},
    {L"Programs\\Games\\Chess.lnk", L"\\Program Files\\Games\\Chess.exe", 117},
    {L"Programs\\Games\\Rummy.lnk", L"\\Program Files\\Games\\Rummy.exe", 117},
    {L"Programs\\Games\\Solitaire.lnk", L"\\Windows\\Solitaire.exe", 117},
    {L"Programs\\Multimedia\\Camera.lnk", L"\\Windows\\Camera.exe", 114},
    {L"Programs\\Multimedia\\Music Player.lnk", L"\\Windows\\Music.exe", 111},
    {L"Programs\\Multimedia\\Pictures.lnk", L"\\Windows\\Pictures.exe", 115},
    {L"Programs\\Multimedia\\Video Player.lnk", L"\\Windows\\Video.exe", 113},
    {L"Programs\\Multimedia\\Voice Recorder.lnk", L"\\Windows\\Recorder.exe", 128},
    {L"Programs\\Office\\Presentations.lnk", L"\\Program Files\\Office\\Show.exe", 108},
    {L"Programs\\Office\\Spreadsheet.lnk", L"\\Program Files\\Office\\Sheet.exe", 107},
    {L"Programs\\Office\\Text Editor.lnk", L"\\Program Files\\Office\\Text.exe", 106},
    {L"Programs\\System\\Battery Monitor.lnk", L"\\Windows\\Battery.exe", 136},
    {L"Programs\\System\\Task Manager.lnk", L"\\Windows\\System32\\taskmgr.exe", 118},
};

} // namespace

Table<StartMenuFile> StartMenuFiles()
{
    return {kFiles, sizeof(kFiles) / sizeof(kFiles[0])};
}

} // namespace sample
