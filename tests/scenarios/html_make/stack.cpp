/** ::Stack Keeps numbers, last in first out
*/
class Stack
{
  public :
    void push(int number) ;
};

/** Stack::push
Puts a number on the Stack.~
See also #LIMIT
*/
void Stack::push(int number)
{
}

#define LIMIT 100
