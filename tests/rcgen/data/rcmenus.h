// Generated file : do not edit by hand
#ifndef _rcmenus_h_
#define _rcmenus_h_


#define CallBar_FILEMENU() \
if (code==10) { mnuOPEN() ; return(1) ; };\
if (code==11) { mnuCM_EXIT() ; return(1) ; };\


#define CallBar_MENUITEM() \
if (code==20) { mnuCUT() ; return(1) ; };\


#define CallBar_EDITMENU() \
if (code==20) { mnuCUT() ; return(1) ; };\
if (code==10) { mnuOPEN() ; return(1) ; };\




#define Menubar_FILEMENU \
virtual void mnuOPEN() ;\
virtual void mnuCM_EXIT() ;\


#define Menubar_MENUITEM \
virtual void mnuCUT() ;\


#define Menubar_EDITMENU \
virtual void mnuCUT() ;\
virtual void mnuOPEN() 


/*
PAGES()
*/
class rcPAGES : public Dialog
{
  public :
    TabControl TAB ;
    TreeView TREE ;
    ListView LIST ;
    StatusBar BAR ;
    Control OK ;
    Control CANCEL ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdTAB(NMHDR *ndr) ;
    virtual int cmdTREE(NMHDR *ndr) ;
    virtual int cmdLIST(NMHDR *ndr) ;
    virtual int cmdBAR(int notify) ;
    virtual int cmdOK(int notify) ;
    virtual int cmdCANCEL(int notify) ;
    virtual int mnuOPEN() ;
    virtual int mnuCM_EXIT() ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

#endif
