#pragma once

struct KWViewSettings;

/// The second base of a panel with choices that are saved with the plan.
class KWPlanSettingsPanel
{
public:
    virtual ~KWPlanSettingsPanel() = default;
    KWPlanSettingsPanel(const KWPlanSettingsPanel &) = delete;
    KWPlanSettingsPanel &operator=(const KWPlanSettingsPanel &) = delete;

    /// Takes the panel's choices from there, and shows the plan so, which does not change by that.
    virtual void readSettings(const KWViewSettings &settings) = 0;
    /// Puts the panel's choices there, and leaves those of others alone.
    virtual void writeSettings(KWViewSettings &settings) const = 0;

protected:
    KWPlanSettingsPanel() = default;
};
