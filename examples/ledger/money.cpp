/**
How amounts are calculated. Nothing is rounded up.
*/
#include "money.h"

/** interest The interest of a year.
What an amount earns when it is left alone for a year.
§amount what is lent, in cents
§percent what a year adds to it
§§ The interest in cents, 0 for an amount that isAmount refuses.
*/
CALCUL_AMOUNT interest(long amount, int percent)
{
  return isAmount(amount) ? amount / 100 * percent : 0;
}

/** interest The interest of some months.
Every month counts the same. // Banks see it otherwise.
§amount what is lent, in cents
§percent what a year adds to it
§months how long it is lent
§§ The interest in cents.
*/
CALCUL_AMOUNT interest(long amount, int percent, int months)
{
  return interest(amount, percent) / 12 * months;
}

/** isAmount Whether an account may hold the amount.
Nothing below 0, and nothing above MAX_AMOUNT.
§amount any number of cents
§§ 1 when it may.
*/
CALCUL_FLAG isAmount(long amount)
{
  return amount >= 0 && amount <= MAX_AMOUNT;
}
