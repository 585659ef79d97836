#include "device/NowContents.h"

#include "device/Texts.h"
#include "dialogs/now/PluginRules.h"

namespace
{

// A panel as the shell itself fills it, on any day.
struct DefaultPanel
{
    int32_t Kind;
    int Icon;
    const wchar_t* Title;
    const wchar_t* First;
    const wchar_t* Second;
};

constexpr DefaultPanel kDefaults[] = {
    {KindCalendar, 103, texts::kNowCalendar, texts::kNowMeeting, texts::kNowLunch},
    {KindEmail, 104, texts::kNowEmail, texts::kNowMessages, texts::kNowSubject},
    {KindWeather, 138, texts::kNowWeather, texts::kNowToday, texts::kNowTomorrow},
    {KindProfile, 128, texts::kNowProfile, texts::kNowNormal, texts::kNowRinger},
};

} // namespace

NowContents ReadNowContents()
{
    return {LoadLayoutType(), NowPanelsOf(PeekPlugins())};
}

std::vector<NowPanel> NowPanelsOf(const std::vector<Plugin>& plugins)
{
    std::vector<NowPanel> panels;
    for (const DefaultPanel& standard : kDefaults)
    {
        const size_t before = panels.size();
        // The names of the kinds are texts of the module: a label comes without one here.
        for (const Plugin& plugin : plugins)
            if (plugin.IsUsed && plugin.Kind == standard.Kind)
                panels.push_back(
                    {standard.Icon, plugin.Label, {texts::Translate(texts::kNowPlugin)}});
        if (panels.size() == before)
            panels.push_back(
                {standard.Icon,
                 texts::Translate(standard.Title),
                 {texts::Translate(standard.First), texts::Translate(standard.Second)}});
    }
    return panels;
}
