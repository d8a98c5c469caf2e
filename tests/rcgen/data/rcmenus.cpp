// Generated file : do not edit by hand
#include "kesto.h"
#include "rcmenus.h"
void rcPAGES::rcInit()
{
  TAB.Get(this, 200) ;
  TREE.Get(this, 201) ;
  LIST.Get(this, 202) ;
  BAR.Get(this, 203) ;
  OK.Get(this, IDOK) ;
  CANCEL.Get(this, IDCANCEL) ;
}

char *rcPAGES::Name()
{
  return("PAGES") ;
}

#pragma argsused
int rcPAGES::cmdTAB(NMHDR *hdr)
{
  return(0) ;
}

#pragma argsused
int rcPAGES::cmdTREE(NMHDR *hdr)
{
  return(0) ;
}

#pragma argsused
int rcPAGES::cmdLIST(NMHDR *hdr)
{
  return(0) ;
}

#pragma argsused
int rcPAGES::cmdBAR(int notify)
{
  return(0) ;
}

#pragma argsused
int rcPAGES::cmdOK(int notify)
{
  End(1) ;
  return(0) ;
}

#pragma argsused
int rcPAGES::cmdCANCEL(int notify)
{
  End(0) ;
  return(0) ;
}

int rcPAGES::mnuOPEN()
{
  return(0) ;
}

int rcPAGES::mnuCM_EXIT()
{
  return(0) ;
}

#pragma argsused
int rcPAGES::wmCommand(int id, int notify)
{
  switch (id)
  {
    case 203 : return(cmdBAR(notify)) ;
    case IDOK : return(cmdOK(notify)) ;
    case IDCANCEL : return(cmdCANCEL(notify)) ;
    case 10 : return(mnuOPEN()) ;
    case 11 : return(mnuCM_EXIT()) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcPAGES::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  case 200 : if (hdr->code==TCN_SELCHANGE) cmdTAB(hdr) ; return ;
  case 201 : cmdTREE(hdr) ; return ;
  case 202 : cmdLIST(hdr) ; return ;
  }
  Dialog::wmNotify(hdr) ;
}

