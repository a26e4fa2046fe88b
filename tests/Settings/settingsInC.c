/* The interface as a C program has it. */
#include "rrcSettings.h"

/* The band that "n78" is; 0 after a refusal. */
unsigned bandInC(void);

unsigned bandInC(void)
{
    unsigned band = 0;
    RrcSettings* const settings = rrcSettingsNew();
    if (rrcSettingsSet(settings, "band", "n78", 3, NULL, NULL, 0) == 0)
    {
        const RrcRuleContext* const known = rrcSettingsContext(settings, NULL, 0);
        band = known == NULL ? 0 : known->band;
    }
    rrcSettingsFree(settings);
    return band;
}
