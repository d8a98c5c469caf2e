/**
The accounts of a house and the book that they stand in.
*/
#ifndef LEDGER_H
#define LEDGER_H

#include <map>
#include <string>

#include "money.h"

/** ::Account What somebody owns, or owes to nobody.
An Account never goes below 0; the Ledger sees to it.
*/
class Account
{
  public :
    Account() ;
    int deposit(long amount) ;
    int withdraw(long amount) ;
    long balance() const { return balance_ ; }

  private :
    long balance_ ;
};

/** ::Ledger A book of accounts by their owners' names
*/
class Ledger
{
  public :
    Account& open(const std::string& owner) ;
    int transfer(const std::string& from, const std::string& to, long amount) ;
    long total() const ;

  private :
    std::map<std::string, Account> accounts_ ;
};

#endif
