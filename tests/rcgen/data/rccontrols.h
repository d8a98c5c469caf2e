// Generated file : do not edit by hand
#ifndef _rccontrols_h_
#define _rccontrols_h_





/*
FIND_10A3()
*/
class rcFIND_10A3 : public Dialog
{
  public :
    Control OK ;
    Control CANCEL ;
    Control HELP ;
    Edit NAME ;
    CheckBox CM_CHECK ;
    Radio IDC_ ;
    List A ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdOK(int notify) ;
    virtual int cmdCANCEL(int notify) ;
    virtual int cmdHELP(int notify) ;
    virtual int cmdNAME(int notify) ;
    virtual int cmdCM_CHECK(int notify) ;
    virtual int cmdIDC_(int notify) ;
    virtual int cmdA(int notify) ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

/*
LOST()
*/
class rcLOST : public Dialog
{
  public :

#endif
