/**
Amounts of money, counted in cents.~
What calculates here returns a type of the CALCUL_ family, so that a change of the
type of amounts is a change of one line.
*/
#ifndef MONEY_H
#define MONEY_H

/** #CALCUL_AMOUNT The type of what calculates an amount.
Wide enough for MAX_AMOUNT cents.
*/
#define CALCUL_AMOUNT long

/** #CALCUL_FLAG The type of what answers yes or no.
1 for yes, 0 for no.
*/
#define CALCUL_FLAG int

/** #MAX_AMOUNT The highest amount that an account may hold.
Twenty million in cents.
*/
#define MAX_AMOUNT 2000000000L

/** #CENTS Cents of an amount that is given in units.
Both arguments are evaluated once.
*/
#define CENTS(units, cents) \
  ((units) * 100L + \
   (cents))

CALCUL_AMOUNT interest(long amount, int percent);
CALCUL_AMOUNT interest(long amount, int percent, int months);
CALCUL_FLAG isAmount(long amount);

#endif
