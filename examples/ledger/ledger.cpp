#include "ledger.h"

Account::Account()
  : balance_(0)
{
}

/** Account::deposit
Adds what isAmount accepts.
§amount cents to add
§§ 1, or 0 when the account would hold more than MAX_AMOUNT.
*/
int Account::deposit(long amount)
{
  if (!isAmount(amount) || !isAmount(balance_ + amount))
    return 0;
  balance_ += amount;
  return 1;
}

/** Account::withdraw
Takes away what is there.
§amount cents to take
§§ 1, or 0 when there is not as much.
*/
int Account::withdraw(long amount)
{
  if (!isAmount(amount) || balance_ < amount)
    return 0;
  balance_ -= amount;
  return 1;
}

Account& Ledger::open(const std::string& owner)
{
  return accounts_[owner];
}

int Ledger::transfer(const std::string& from, const std::string& to, long amount)
{
  if (!open(from).withdraw(amount))
    return 0;
  if (open(to).deposit(amount))
    return 1;
  open(from).deposit(amount);
  return 0;
}

long Ledger::total() const
{
  long sum = 0;
  for (const auto& account : accounts_)
    sum += account.second.balance();
  return sum;
}
