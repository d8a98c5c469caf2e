// Controls of the dialog "FenetreConfirmation".
#pragma once

#define CONFIRMATION_LIST 101
#define CONFIRMATION_PROCEED 102
#define CONFIRMATION_MAIL 103
