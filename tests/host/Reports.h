#ifndef Reports_h
#define Reports_h

/// Writes a site on a single page and one with frames into directories of these names, and the
/// texts of both. Takes "a.gif", "b.gif" and "images/Corp.gif" of the current directory. False on a
/// failure.
bool WriteReports();

#endif
