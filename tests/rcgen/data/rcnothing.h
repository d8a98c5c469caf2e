// Generated file : do not edit by hand
#ifndef _rcnothing_h_
#define _rcnothing_h_





#endif
