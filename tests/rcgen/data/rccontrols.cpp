// Generated file : do not edit by hand
#include "kesto.h"
#include "rccontrols.h"
void rcFIND_10A3::rcInit()
{
  OK.Get(this, IDOK) ;
  CANCEL.Get(this, IDCANCEL) ;
  HELP.Get(this, IDHELP) ;
  NAME.Get(this, 101) ;
  CM_CHECK.Get(this, 103) ;
  IDC_.Get(this, 104) ;
  A.Get(this, (100+5)) ;
}

char *rcFIND_10A3::Name()
{
  return("FIND_10A3") ;
}

#pragma argsused
int rcFIND_10A3::cmdOK(int notify)
{
  End(1) ;
  return(0) ;
}

#pragma argsused
int rcFIND_10A3::cmdCANCEL(int notify)
{
  End(0) ;
  return(0) ;
}

#pragma argsused
int rcFIND_10A3::cmdHELP(int notify)
{
  return(0) ;
}

#pragma argsused
int rcFIND_10A3::cmdNAME(int notify)
{
  return(0) ;
}

#pragma argsused
int rcFIND_10A3::cmdCM_CHECK(int notify)
{
  return(0) ;
}

#pragma argsused
int rcFIND_10A3::cmdIDC_(int notify)
{
  return(0) ;
}

#pragma argsused
int rcFIND_10A3::cmdA(int notify)
{
  return(0) ;
}

#pragma argsused
int rcFIND_10A3::wmCommand(int id, int notify)
{
  switch (id)
  {
    case IDOK : return(cmdOK(notify)) ;
    case IDCANCEL : return(cmdCANCEL(notify)) ;
    case IDHELP : return(cmdHELP(notify)) ;
    case 101 : return(cmdNAME(notify)) ;
    case 103 : return(cmdCM_CHECK(notify)) ;
    case 104 : return(cmdIDC_(notify)) ;
    case (100+5) : return(cmdA(notify)) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcFIND_10A3::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}

