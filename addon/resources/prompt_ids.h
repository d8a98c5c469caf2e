/* Control of the text prompt; read by the resource compiler too. */
#ifndef ADDON_RESOURCES_PROMPT_IDS_H_
#define ADDON_RESOURCES_PROMPT_IDS_H_

#define PROMPT_TEXT 101

#endif
