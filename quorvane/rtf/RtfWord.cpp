#include "quorvane/rtf/RtfWord.h"

#include <array>
#include <cstddef>
#include <iterator>

namespace quorvane {

namespace {

// Each word is in one of the three lists; the last two are sorted.

// clang-format off
constexpr RtfWord wordsWithMeaning[] = {
    // What a document and its text consist of.
    {.word = "rtf", .destination = RtfDestination::Text, .role = RtfRole::Document},
    {.word = "upr", .destination = RtfDestination::Text},
    {.word = "field", .destination = RtfDestination::Text},
    {.word = "fldrslt", .destination = RtfDestination::Text},
    {.word = "result", .destination = RtfDestination::Text, .role = RtfRole::Result},
    {.word = "fldinst", .destination = RtfDestination::Instruction},
    {.word = "fonttbl", .destination = RtfDestination::FontTable},
    {.word = "colortbl", .destination = RtfDestination::ColorTable},
    {.word = "stylesheet", .destination = RtfDestination::StyleSheet},
    // Tables.
    {.word = "trowd", .role = RtfRole::RowDefinition},
    {.word = "cellx", .role = RtfRole::CellDefinition},
    {.word = "cell", .role = RtfRole::Cell},
    {.word = "row", .role = RtfRole::Row},
    {.word = "intbl", .role = RtfRole::InTable},
    {.word = "itap", .role = RtfRole::Level},
    {.word = "nestcell", .role = RtfRole::NestedCell},
    {.word = "nestrow", .role = RtfRole::NestedRow},
    {.word = "nesttableprops", .destination = RtfDestination::NestedRow},
    {.word = "sect", .role = RtfRole::Section},
    // Numbers of fonts.
    {.word = "f", .role = RtfRole::Font},
    {.word = "af", .role = RtfRole::Font},
    // Numbers of colors.
    {.word = "cf", .role = RtfRole::TextColor},
    {.word = "cb", .role = RtfRole::GroundColor},
    {.word = "cbpat", .role = RtfRole::GroundColor},
    {.word = "chcbpat", .role = RtfRole::GroundColor},
    {.word = "highlight", .role = RtfRole::GroundColor},
    {.word = "acf", .role = RtfRole::OtherColor},
    {.word = "brdrcf", .role = RtfRole::OtherColor},
    {.word = "cfpat", .role = RtfRole::OtherColor},
    {.word = "chcfpat", .role = RtfRole::OtherColor},
    {.word = "clcbpat", .role = RtfRole::OtherColor},
    {.word = "clcbpatraw", .role = RtfRole::OtherColor},
    {.word = "clcfpat", .role = RtfRole::OtherColor},
    {.word = "clcfpatraw", .role = RtfRole::OtherColor},
    {.word = "pncf", .role = RtfRole::OtherColor},
    {.word = "trcbpat", .role = RtfRole::OtherColor},
    {.word = "trcfpat", .role = RtfRole::OtherColor},
    {.word = "tscellcbpat", .role = RtfRole::OtherColor},
    {.word = "tscellcfpat", .role = RtfRole::OtherColor},
    {.word = "ulc", .role = RtfRole::OtherColor},
    // Numbers of styles.
    {.word = "s", .role = RtfRole::ParagraphStyle},
    {.word = "cs", .role = RtfRole::CharacterStyle},
    {.word = "ds", .role = RtfRole::SectionStyle},
    {.word = "ts", .role = RtfRole::TableStyle},
    // What changes the text that follows.
    {.word = "pard", .role = RtfRole::ParagraphReset},
    {.word = "plain", .role = RtfRole::Plain},
    {.word = "u", .role = RtfRole::Unicode},
    {.word = "uc", .role = RtfRole::UnicodeLength},
    // Characters.
    {.word = "tab", .shown = ' ', .code = 0x9},
    {.word = "line", .shown = ' ', .code = 0xA},
    {.word = "par", .shown = ' '},
    {.word = "emspace", .shown = ' ', .code = 0x2003},
    {.word = "enspace", .shown = ' ', .code = 0x2002},
    {.word = "qmspace", .shown = ' ', .code = 0x2005},
    {.word = "bullet", .shown = '?', .code = 0x2022},
    {.word = "emdash", .shown = '?', .code = 0x2014},
    {.word = "endash", .shown = '?', .code = 0x2013},
    {.word = "ldblquote", .shown = '?', .code = 0x201C},
    {.word = "lquote", .shown = '?', .code = 0x2018},
    {.word = "rdblquote", .shown = '?', .code = 0x201D},
    {.word = "rquote", .shown = '?', .code = 0x2019},
    {.word = "chdate", .shown = '?'},
    {.word = "chdpa", .shown = '?'},
    {.word = "chdpl", .shown = '?'},
    {.word = "chftn", .shown = '?'},
    {.word = "chpgn", .shown = '?'},
    {.word = "chtime", .shown = '?'},
    {.word = "sectnum", .shown = '?'},
    // What brings along something that is not seen in the text.
    {.word = "bin", .role = RtfRole::Binary, .brings = RtfContent::BinaryData},
    {.word = "pict", .destination = RtfDestination::Other, .brings = RtfContent::Picture},
    {.word = "object", .destination = RtfDestination::Other, .brings = RtfContent::Object},
    {.word = "objdata", .destination = RtfDestination::Other, .brings = RtfContent::Object},
    {.word = "objemb", .brings = RtfContent::Object},
    {.word = "objlink", .brings = RtfContent::FileLink},
    {.word = "objautlink", .brings = RtfContent::FileLink},
    {.word = "objocx", .brings = RtfContent::Program},
    {.word = "template", .destination = RtfDestination::Other, .brings = RtfContent::FileLink},
    {.word = "nextfile", .destination = RtfDestination::Other, .brings = RtfContent::FileLink},
    {.word = "subdocument", .brings = RtfContent::FileLink},
    {.word = "file", .destination = RtfDestination::Other, .brings = RtfContent::FileLink},
    {.word = "ffentrymcr", .destination = RtfDestination::Other, .brings = RtfContent::Macro},
    {.word = "ffexitmcr", .destination = RtfDestination::Other, .brings = RtfContent::Macro},
    {.word = "datastore", .destination = RtfDestination::Other, .brings = RtfContent::BinaryData},
    {.word = "themedata", .destination = RtfDestination::Other, .brings = RtfContent::BinaryData},
};

// Words that begin a group whose text is not the document's.
constexpr RtfLetters otherDestinations[] = {
    "aftncn", "aftnsep", "aftnsepc", "annotation", "atnauthor", "atndate", "atnicn", "atnid",
    "atnparent", "atnref", "atntime", "atrfend", "atrfstart", "author", "background", "bkmkend",
    "bkmkstart", "blipuid", "buptim", "category", "colorschememapping", "comment", "company",
    "creatim", "datafield", "defchp", "defpap", "do", "doccomm", "docvar", "dptxbxtext", "ebcend",
    "ebcstart", "factoidname", "falt", "fchars", "ffdeftext", "ffformat", "ffhelptext", "ffl",
    "ffname", "ffstattext", "filetbl", "fldtype", "fontemb", "fontfile", "footer", "footerf",
    "footerl", "footerr", "footery", "footnote", "formfield", "ftncn", "ftnsep", "ftnsepc", "g",
    "generator", "gridtbl", "header", "headerf", "headerl", "headerr", "headery", "hl", "hlfr",
    "hlinkbase", "hlloc", "hlsrc", "hsv", "htmltag", "info", "keycode", "keywords", "latentstyles",
    "lchars", "levelnumbers", "leveltext", "lfolevel", "linkval", "list", "listlevel", "listname",
    "listoverride", "listoverridetable", "listpicture", "liststylename", "listtable", "listtext",
    "lsdlockedexcept", "macc", "maccPr", "mailmerge", "maln", "malnScr", "manager", "margPr",
    "mbar", "mbarPr", "mbaseJc", "mbegChr", "mborderBox", "mborderBoxPr", "mbox", "mboxPr", "mchr",
    "mcount", "mctrlPr", "md", "mdPr", "mdeg", "mdegHide", "mden", "mdiff", "me", "mendChr",
    "meqArr", "meqArrPr", "mf", "mfName", "mfPr", "mfunc", "mfuncPr", "mgroupChr", "mgroupChrPr",
    "mgrow", "mhideBot", "mhideLeft", "mhideRight", "mhideTop", "mhtmltag", "mlim", "mlimLoc",
    "mlimLow", "mlimLowPr", "mlimUpp", "mlimUppPr", "mlimloc", "mlimlow", "mlimlowPr", "mlimupp",
    "mlimuppPr", "mm", "mmPr", "mmaddfieldname", "mmath", "mmathPict", "mmathPr", "mmaxDist",
    "mmaxdist", "mmc", "mmcJc", "mmcPr", "mmconnectstr", "mmconnectstrdata", "mmcs", "mmdatasource",
    "mmheadersource", "mmmailsubject", "mmodso", "mmodsofilter", "mmodsofldmpdata",
    "mmodsomappedname", "mmodsoname", "mmodsorecipdata", "mmodsosort", "mmodsosrc", "mmodsotable",
    "mmodsoudl", "mmodsoudldata", "mmodsouniquetag", "mmquery", "mmr", "mnary", "mnaryPr",
    "mnoBreak", "mnum", "moMath", "moMathPara", "moMathParaPr", "mobjDist", "mopEmu", "mphant",
    "mphantPr", "mplcHide", "mpos", "mr", "mrPr", "mrad", "mradPr", "msPre", "msPrePr", "msSub",
    "msSubPr", "msSubSup", "msSubSupPr", "msSup", "msSupPr", "msepChr", "mshow", "mshp",
    "mstrikeBLTR", "mstrikeH", "mstrikeTLBR", "mstrikeV", "msub", "msubHide", "msup", "msupHide",
    "mtransp", "mtype", "mvertJc", "mvfmf", "mvfml", "mvtof", "mvtol", "mzeroAsc", "mzeroDesc",
    "mzeroWid", "nonesttables", "nonshppict", "objalias", "objclass", "objname", "objsect",
    "objtime", "oldcprops", "oldpprops", "oldsprops", "oldtprops", "oleclsid", "operator", "panose",
    "password", "passwordhash", "pgp", "pgptbl", "picprop", "pn", "pnseclvl", "pntext", "pntxta",
    "pntxtb", "printim", "private", "propname", "protend", "protstart", "protusertbl", "pxe",
    "revtbl", "revtim", "rsidtbl", "rxe", "shp", "shpgrp", "shpinst", "shppict", "shprslt",
    "shptxt", "sn", "sp", "staticval", "subject", "sv", "svb", "tc", "title", "txe", "ud", "urtf",
    "userprops", "wgrffmtfilter", "windowcaption", "writereservation", "writereservhash", "xe",
    "xform", "xmlattrname", "xmlattrvalue", "xmlclose", "xmlname", "xmlns", "xmlnstbl", "xmlopen",
};

constexpr RtfLetters otherWords[] = {
    "ApplyBrkRules", "ab", "absh", "abslock", "absnoovrlp", "absw", "acaps", "acccircle",
    "acccomma", "accdot", "accnone", "accunderdot", "additive", "adeff", "adeflang", "adjustright",
    "adn", "aenddoc", "aendnotes", "aexpnd", "afelev", "afs", "aftnbj", "aftnnalc", "aftnnar",
    "aftnnauc", "aftnnchi", "aftnnchosung", "aftnncnum", "aftnndbar", "aftnndbnum", "aftnndbnumd",
    "aftnndbnumk", "aftnndbnumt", "aftnnganada", "aftnngbnum", "aftnngbnumd", "aftnngbnumk",
    "aftnngbnuml", "aftnnrlc", "aftnnruc", "aftnnzodiac", "aftnnzodiacd", "aftnnzodiacl",
    "aftnrestart", "aftnrstcont", "aftnstart", "aftntj", "ai", "alang", "allowfieldendsel",
    "allprot", "alntblind", "alt", "animtext", "annotprot", "ansi", "ansicpg", "aoutl", "ascaps",
    "ashad", "asianbrkrule", "aspalpha", "aspnum", "astrike", "aul", "auld", "auldb", "aulnone",
    "aulw", "aup", "autofmtoverride", "b", "bdbfhdr", "bdrrlswsix", "bgbdiag", "bgcross",
    "bgdcross", "bgdkbdiag", "bgdkcross", "bgdkdcross", "bgdkfdiag", "bgdkhoriz", "bgdkvert",
    "bgfdiag", "bghoriz", "bgvert", "binfsxn", "binsxn", "bkmkcolf", "bkmkcoll", "bkmkpub",
    "bliptag", "blipupi", "blue", "bookfold", "bookfoldrev", "bookfoldsheets", "box", "brdrart",
    "brdrb", "brdrbar", "brdrbtw", "brdrdash", "brdrdashd", "brdrdashdd", "brdrdashdot",
    "brdrdashdotdot", "brdrdashdotstr", "brdrdashsm", "brdrdb", "brdrdot", "brdremboss",
    "brdrengrave", "brdrframe", "brdrhair", "brdrinset", "brdrl", "brdrnil", "brdrnone",
    "brdroutset", "brdrr", "brdrs", "brdrsh", "brdrt", "brdrtbl", "brdrth", "brdrthtnlg",
    "brdrthtnmg", "brdrthtnsg", "brdrtnthlg", "brdrtnthmg", "brdrtnthsg", "brdrtnthtnlg",
    "brdrtnthtnmg", "brdrtnthtnsg", "brdrtriple", "brdrw", "brdrwavy", "brdrwavydb", "brkfrm",
    "brsp", "bv", "bxe", "caccentfive", "caccentfour", "caccentone", "caccentsix", "caccentthree",
    "caccenttwo", "cachedcolbal", "caps", "cbackgroundone", "cbackgroundtwo", "cchs",
    "cfollowedhyperlink", "cgrid", "charrsid", "charscalex", "chatn", "chbgbdiag", "chbgcross",
    "chbgdcross", "chbgdkbdiag", "chbgdkcross", "chbgdkdcross", "chbgdkfdiag", "chbgdkhoriz",
    "chbgdkvert", "chbgfdiag", "chbghoriz", "chbgvert", "chbrdr", "chftnsep", "chftnsepc", "chhres",
    "chshdng", "chyperlink", "clFitText", "clNoWrap", "clbgbdiag", "clbgcross", "clbgdcross",
    "clbgdkbdiag", "clbgdkcross", "clbgdkdcross", "clbgdkfdiag", "clbgdkhor", "clbgdkvert",
    "clbgfdiag", "clbghoriz", "clbgvert", "clbrdrb", "clbrdrl", "clbrdrr", "clbrdrt", "cldel",
    "cldelauth", "cldeldttm", "cldgll", "cldglu", "clftsWidth", "clhidemark", "clins", "clinsauth",
    "clinsdttm", "clmgf", "clmrg", "clmrgd", "clmrgdauth", "clmrgddttm", "clmrgdr", "clpadb",
    "clpadfb", "clpadfl", "clpadfr", "clpadft", "clpadl", "clpadr", "clpadt", "clshdng",
    "clshdngraw", "clshdrawnil", "clspb", "clspfb", "clspfl", "clspfr", "clspft", "clspl",
    "clsplit", "clsplitr", "clspr", "clspt", "cltxbtlr", "cltxlrtb", "cltxlrtbv", "cltxtbrl",
    "cltxtbrlv", "clvertalb", "clvertalc", "clvertalt", "clvmgf", "clvmrg", "clwWidth",
    "cmaindarkone", "cmaindarktwo", "cmainlightone", "cmainlighttwo", "collapsed", "colno", "cols",
    "colsr", "colsx", "column", "colw", "contextualspace", "cpg", "crauth", "crdate", "cshade",
    "ctextone", "ctexttwo", "ctint", "ctrl", "cts", "cufi", "culi", "curi", "cvmme", "date", "dbch",
    "deff", "defformat", "deflang", "deflangfe", "defshp", "deftab", "deleted", "delrsid",
    "dfrauth", "dfrdate", "dfrmtxtx", "dfrmtxty", "dfrstart", "dfrstop", "dfrxst", "dghorigin",
    "dghshow", "dghspace", "dgmargin", "dgsnap", "dgvorigin", "dgvshow", "dgvspace", "dibitmap",
    "disabled", "dn", "dntblnsbdb", "dobxcolumn", "dobxmargin", "dobxpage", "dobymargin",
    "dobypage", "dobypara", "doctemp", "doctype", "dodhgt", "dolock", "donotembedlingdata",
    "donotembedsysfont", "donotshowcomments", "donotshowinsdel", "donotshowmarkup",
    "donotshowprops", "dpaendhol", "dpaendl", "dpaendsol", "dpaendw", "dparc", "dparcflipx",
    "dparcflipy", "dpastarthol", "dpastartl", "dpastartsol", "dpastartw", "dpcallout", "dpcoa",
    "dpcoaccent", "dpcobestfit", "dpcoborder", "dpcodabs", "dpcodbottom", "dpcodcenter",
    "dpcodescent", "dpcodtop", "dpcolength", "dpcominusx", "dpcominusy", "dpcooffset", "dpcosmarta",
    "dpcotdouble", "dpcotright", "dpcotsingle", "dpcottriple", "dpcount", "dpellipse", "dpendgroup",
    "dpfillbgcb", "dpfillbgcg", "dpfillbgcr", "dpfillbggray", "dpfillbgpal", "dpfillfgcb",
    "dpfillfgcg", "dpfillfgcr", "dpfillfggray", "dpfillfgpal", "dpfillpat", "dpgroup", "dpline",
    "dplinecob", "dplinecog", "dplinecor", "dplinedado", "dplinedadodo", "dplinedash", "dplinedot",
    "dplinegray", "dplinehollow", "dplinepal", "dplinesolid", "dplinew", "dppolycount", "dppolygon",
    "dppolyline", "dpptx", "dppty", "dprect", "dproundr", "dpshadow", "dpshadx", "dpshady",
    "dptxbtlr", "dptxbx", "dptxbxmar", "dptxlrtb", "dptxlrtbv", "dptxtbrl", "dptxtbrlv", "dpx",
    "dpxsize", "dpy", "dpysize", "dropcapli", "dropcapt", "dxfrtext", "dy", "edmins", "embo",
    "emfblip", "enddoc", "endnhere", "endnotes", "enforceprot", "expnd", "expndtw", "expshrtn",
    "faauto", "facenter", "facingp", "fafixed", "fahang", "faroman", "favar", "fbias", "fbidi",
    "fbidis", "fbimajor", "fbiminor", "fcharset", "fcs", "fdbmajor", "fdbminor", "fdecor",
    "felnbrelev", "fet", "fetch", "ffdefres", "ffhaslistbox", "ffhps", "ffmaxlen", "ffownhelp",
    "ffownstat", "ffprot", "ffrecalc", "ffres", "ffsize", "fftype", "fftypetxt", "fhimajor",
    "fhiminor", "fi", "fid", "fittext", "fjgothic", "fjminchou", "fldalt", "flddirty", "fldedit",
    "fldlock", "fldpriv", "flomajor", "flominor", "fmodern", "fn", "fname", "fnetwork", "fnil",
    "fnonfilesys", "forceupgrade", "formatconverter", "formdisp", "formprot", "formshade", "fosnum",
    "fprq", "fracwidth", "frelative", "frmtxbtlr", "frmtxlrtb", "frmtxlrtbv", "frmtxtbrl",
    "frmtxtbrlv", "froman", "fromhtml", "fromtext", "fs", "fscript", "fswiss", "ftech", "ftnalt",
    "ftnbj", "ftnil", "ftnlytwnine", "ftnnalc", "ftnnar", "ftnnauc", "ftnnchi", "ftnnchosung",
    "ftnncnum", "ftnndbar", "ftnndbnum", "ftnndbnumd", "ftnndbnumk", "ftnndbnumt", "ftnnganada",
    "ftnngbnum", "ftnngbnumd", "ftnngbnumk", "ftnngbnuml", "ftnnrlc", "ftnnruc", "ftnnzodiac",
    "ftnnzodiacd", "ftnnzodiacl", "ftnrestart", "ftnrstcont", "ftnrstpg", "ftnstart", "ftntj",
    "fttruetype", "fvaliddos", "fvalidhpfs", "fvalidmac", "fvalidntfs", "green", "grfdocevents",
    "gutter", "gutterprl", "guttersxn", "hich", "horzdoc", "horzsect", "horzvert", "hr", "hres",
    "hrule", "htmautsp", "htmlbase", "htmlrtf", "hwelev", "hyphauto", "hyphcaps", "hyphconsec",
    "hyphhotz", "hyphpar", "i", "id", "ignoremixedcontent", "ilfomacatclnup", "ilvl", "impr",
    "indmirror", "indrlsweleven", "insrsid", "ipgp", "irow", "irowband", "ixe", "jclisttab",
    "jcompress", "jexpand", "jis", "jpegblip", "jsksu", "keep", "keepn", "kerning", "krnprsnet",
    "ksulang", "landscape", "lang", "langfe", "langfenp", "langnp", "lastrow", "lbr", "level",
    "levelfollow", "levelindent", "leveljc", "leveljcn", "levellegal", "levelnfc", "levelnfcn",
    "levelnorestart", "levelold", "levelpicture", "levelpicturenosize", "levelprev",
    "levelprevspace", "levelspace", "levelstartat", "leveltemplateid", "li", "lin", "linebetcol",
    "linecont", "linemod", "lineppage", "linerestart", "linestart", "linestarts", "linex",
    "linkself", "linkstyles", "lisa", "lisb", "listhybrid", "listid", "listoverridecount",
    "listoverrideformat", "listoverridestartat", "listrestarthdn", "listsimple", "liststyleid",
    "listtemplateid", "lnbrkrule", "lndscpsxn", "lnongrid", "loch", "ls", "lsdlocked",
    "lsdlockeddef", "lsdpriority", "lsdprioritydef", "lsdqformat", "lsdqformatdef", "lsdsemihidden",
    "lsdsemihiddendef", "lsdstimax", "lsdunhideused", "lsdunhideuseddef", "ltrch", "ltrdoc",
    "ltrmark", "ltrpar", "ltrrow", "ltrsect", "lvltentative", "lytcalctblwd", "lytexcttp",
    "lytprtmet", "lyttblrtgr", "mac", "macpict", "makebackup", "margSz", "margb", "margbsxn",
    "margl", "marglsxn", "margmirror", "margmirsxn", "margr", "margrsxn", "margt", "margtsxn",
    "mbrk", "mbrkBin", "mbrkBinSub", "mcGp", "mcGpRule", "mcSp", "mdefJc", "mdiffSty", "mdispDef",
    "mdispdef", "min", "mintLim", "minterSp", "mintraSp", "mjc", "mlMargin", "mlit", "mmathFont",
    "mmattach", "mmblanklinks", "mmdatatypeaccess", "mmdatatypeexcel", "mmdatatypefile",
    "mmdatatypeodbc", "mmdatatypeodso", "mmdatatypeqt", "mmdefaultsql", "mmdestemail", "mmdestfax",
    "mmdestnewdoc", "mmdestprinter", "mmerrors", "mmfttypeaddress", "mmfttypebarcode",
    "mmfttypedbcolumn", "mmfttypemapped", "mmfttypenull", "mmfttypesalutation", "mmjdsotype",
    "mmlinktoquery", "mmmaintypecatalog", "mmmaintypeemail", "mmmaintypeenvelopes", "mmmaintypefax",
    "mmmaintypelabels", "mmmaintypeletters", "mmodsoactive", "mmodsocoldelim", "mmodsocolumn",
    "mmodsodynaddr", "mmodsofhdr", "mmodsofmcolumn", "mmodsohash", "mmodsolid", "mmreccur",
    "mmshowdata", "mnaryLim", "mnor", "mo", "mpostSp", "mpreSp", "mrMargin", "mrSp", "mrSpRule",
    "mscr", "msmallFrac", "msmcap", "msty", "muser", "mvauth", "mvdate", "mvf", "mvt",
    "mwrapIndent", "mwrapRight", "newtblstyruls", "noafcnsttbl", "nobrkwrptbl", "nocolbal",
    "nocompatoptions", "nocwrap", "nocxsptable", "noextrasprl", "nofchars", "nofcharsws",
    "nofeaturethrottle", "nofpages", "nofwords", "nogrowautofit", "noindnmbrts", "nojkernpunct",
    "nolead", "noline", "nolnhtadjtbl", "nooverflow", "noproof", "noqfpromote", "nosectexpand",
    "nosnaplinegrid", "nospaceforul", "nosupersub", "notabind", "notbrkcnstfrctbl", "notcvasp",
    "notvatxbx", "nouicompat", "noultrlspc", "nowidctlpar", "nowrap", "nowwrap", "noxlattoyen",
    "objalign", "objattph", "objcropb", "objcropl", "objcropr", "objcropt", "objh", "objhtml",
    "objicemb", "objlock", "objpub", "objscalex", "objscaley", "objsetsize", "objsub", "objtransy",
    "objupdate", "objw", "oldas", "oldlinewrap", "otblrul", "outl", "outlinelevel", "overlay",
    "page", "pagebb", "paperh", "paperw", "pararsid", "pc", "pca", "pgbrdrb", "pgbrdrfoot",
    "pgbrdrhead", "pgbrdrl", "pgbrdropt", "pgbrdrr", "pgbrdrsnap", "pgbrdrt", "pghsxn", "pgnbidia",
    "pgnbidib", "pgnchosung", "pgncnum", "pgncont", "pgndbnum", "pgndbnumd", "pgndbnumk",
    "pgndbnumt", "pgndec", "pgndecd", "pgnganada", "pgngbnum", "pgngbnumd", "pgngbnumk",
    "pgngbnuml", "pgnhindia", "pgnhindib", "pgnhindic", "pgnhindid", "pgnhn", "pgnhnsc", "pgnhnsh",
    "pgnhnsm", "pgnhnsn", "pgnhnsp", "pgnid", "pgnlcltr", "pgnlcrm", "pgnrestart", "pgnstart",
    "pgnstarts", "pgnthaia", "pgnthaib", "pgnthaic", "pgnucltr", "pgnucrm", "pgnvieta", "pgnx",
    "pgny", "pgnzodiac", "pgnzodiacd", "pgnzodiacl", "pgwsxn", "phcol", "phmrg", "phpg", "picbmp",
    "picbpp", "piccropb", "piccropl", "piccropr", "piccropt", "pich", "pichgoal", "picscaled",
    "picscalex", "picscaley", "picw", "picwgoal", "pindtabqc", "pindtabql", "pindtabqr",
    "pmartabqc", "pmartabql", "pmartabqr", "pmmetafile", "pnacross", "pnaiu", "pnaiud", "pnaiueo",
    "pnaiueod", "pnb", "pnbidia", "pnbidib", "pncaps", "pncard", "pnchosung", "pncnum", "pndbnum",
    "pndbnumd", "pndbnumk", "pndbnuml", "pndbnumt", "pndec", "pndecd", "pnf", "pnfs", "pnganada",
    "pngblip", "pngbnum", "pngbnumd", "pngbnumk", "pngbnuml", "pnhang", "pni", "pnindent",
    "pniroha", "pnirohad", "pnlcltr", "pnlcrm", "pnlvl", "pnlvlblt", "pnlvlbody", "pnlvlcont",
    "pnnumonce", "pnord", "pnordt", "pnprev", "pnqc", "pnql", "pnqr", "pnrauth", "pnrdate",
    "pnrestart", "pnrnfc", "pnrnot", "pnrpnbr", "pnrrgb", "pnrstart", "pnrstop", "pnrxst",
    "pnscaps", "pnsp", "pnstart", "pnstrike", "pnucltr", "pnucrm", "pnul", "pnuld", "pnuldash",
    "pnuldashd", "pnuldashdd", "pnuldb", "pnulhair", "pnulnone", "pnulth", "pnulw", "pnulwave",
    "pnzodiac", "pnzodiacd", "pnzodiacl", "posnegx", "posnegy", "posx", "posxc", "posxi", "posxl",
    "posxo", "posxr", "posy", "posyb", "posyc", "posyil", "posyin", "posyout", "posyt", "prauth",
    "prcolbl", "prdate", "printdata", "proptype", "protect", "protlevel", "psover", "psz",
    "ptabldot", "ptablmdot", "ptablminus", "ptablnone", "ptabluscore", "pubauto", "pvmrg", "pvpara",
    "pvpg", "pwd", "qc", "qd", "qj", "qk", "ql", "qr", "qt", "rawclbgbdiag", "rawclbgcross",
    "rawclbgdcross", "rawclbgdkbdiag", "rawclbgdkcross", "rawclbgdkdcross", "rawclbgdkfdiag",
    "rawclbgdkhor", "rawclbgdkvert", "rawclbgfdiag", "rawclbghoriz", "rawclbgvert",
    "readonlyrecommended", "readprot", "red", "relyonvml", "remdttm", "rempersonalinfo", "revauth",
    "revauthdel", "revbar", "revdttm", "revdttmdel", "revised", "revisions", "revprop", "revprot",
    "ri", "rin", "rsid", "rsidroot", "rsltbmp", "rslthtml", "rsltmerge", "rsltpict", "rsltrtf",
    "rslttxt", "rtlch", "rtldoc", "rtlgutter", "rtlmark", "rtlpar", "rtlrow", "rtlsect", "sa",
    "saauto", "saftnnalc", "saftnnar", "saftnnauc", "saftnnchi", "saftnnchosung", "saftnncnum",
    "saftnndbar", "saftnndbnum", "saftnndbnumd", "saftnndbnumk", "saftnndbnumt", "saftnnganada",
    "saftnngbnum", "saftnngbnumd", "saftnngbnumk", "saftnngbnuml", "saftnnrlc", "saftnnruc",
    "saftnnzodiac", "saftnnzodiacd", "saftnnzodiacl", "saftnrestart", "saftnrstcont", "saftnstart",
    "sautoupd", "saveinvalidxml", "saveprevpict", "sb", "sbasedon", "sbauto", "sbkcol", "sbkeven",
    "sbknone", "sbkodd", "sbkpage", "sbys", "scaps", "scompose", "sec", "sectd", "sectdefaultcl",
    "sectexpand", "sectlinegrid", "sectrsid", "sectspecifycl", "sectspecifygen", "sectspecifyl",
    "sectunlocked", "sftnbj", "sftnnalc", "sftnnar", "sftnnauc", "sftnnchi", "sftnnchosung",
    "sftnncnum", "sftnndbar", "sftnndbnum", "sftnndbnumd", "sftnndbnumk", "sftnndbnumt",
    "sftnnganada", "sftnngbnum", "sftnngbnumd", "sftnngbnumk", "sftnngbnuml", "sftnnrlc",
    "sftnnruc", "sftnnzodiac", "sftnnzodiacd", "sftnnzodiacl", "sftnrestart", "sftnrstcont",
    "sftnrstpg", "sftnstart", "sftntj", "shad", "shading", "shidden", "shift", "showplaceholdtext",
    "showxmlerrors", "shpbottom", "shpbxcolumn", "shpbxignore", "shpbxmargin", "shpbxpage",
    "shpbyignore", "shpbymargin", "shpbypage", "shpbypara", "shpfblwtxt", "shpfhdr", "shpleft",
    "shplid", "shplockanchor", "shpright", "shptop", "shpwr", "shpwrk", "shpz", "sl", "slink",
    "slmult", "slocked", "snaptogridincell", "snext", "softcol", "softlheight", "softline",
    "softpage", "spersonal", "spltpgpar", "splytwnine", "spriority", "sprsbsp", "sprslnsp",
    "sprsspbf", "sprstsm", "sprstsp", "spv", "sqformat", "srauth", "srdate", "sreply",
    "ssemihidden", "stextflow", "strike", "striked", "stshfbi", "stshfdbch", "stshfhich",
    "stshfloch", "stylelock", "stylelockbackcomp", "stylelockenforced", "stylelockqfset",
    "stylelocktheme", "stylesortmethod", "styrsid", "sub", "subfontbysize", "sunhideused", "super",
    "swpbdr", "tabsnoovrlp", "taprtl", "tb", "tblind", "tblindtype", "tbllkbestfit", "tbllkborder",
    "tbllkcolor", "tbllkfont", "tbllkhdrcols", "tbllkhdrrows", "tbllklastcol", "tbllklastrow",
    "tbllknocolband", "tbllknorowband", "tbllkshading", "tblrsid", "tcelld", "tcf", "tcl", "tcn",
    "tdfrmtxtBottom", "tdfrmtxtLeft", "tdfrmtxtRight", "tdfrmtxtTop", "themelang", "themelangcs",
    "themelangfe", "time", "titlepg", "tldot", "tleq", "tlhyph", "tlmdot", "tlth", "tlul",
    "toplinepunct", "tphcol", "tphmrg", "tphpg", "tposnegx", "tposnegy", "tposx", "tposxc",
    "tposxi", "tposxl", "tposxo", "tposxr", "tposy", "tposyb", "tposyc", "tposyil", "tposyin",
    "tposyout", "tposyt", "tpvmrg", "tpvpara", "tpvpg", "tqc", "tqdec", "tqr", "trackformatting",
    "trackmoves", "transmf", "trauth", "trautofit", "trbgbdiag", "trbgcross", "trbgdcross",
    "trbgdkbdiag", "trbgdkcross", "trbgdkdcross", "trbgdkfdiag", "trbgdkhor", "trbgdkvert",
    "trbgfdiag", "trbghoriz", "trbgvert", "trbrdrb", "trbrdrh", "trbrdrl", "trbrdrr", "trbrdrt",
    "trbrdrv", "trdate", "trftsWidth", "trftsWidthA", "trftsWidthB", "trgaph", "trhdr", "trkeep",
    "trkeepfollow", "trleft", "trpaddb", "trpaddfb", "trpaddfl", "trpaddfr", "trpaddft", "trpaddl",
    "trpaddr", "trpaddt", "trpat", "trqc", "trql", "trqr", "trrh", "trshdng", "trspdb", "trspdfb",
    "trspdfl", "trspdfr", "trspdft", "trspdl", "trspdr", "trspdt", "truncatefontheight", "truncex",
    "trwWidth", "trwWidthA", "trwWidthB", "tsbgbdiag", "tsbgcross", "tsbgdcross", "tsbgdkbdiag",
    "tsbgdkcross", "tsbgdkdcross", "tsbgdkfdiag", "tsbgdkhor", "tsbgdkvert", "tsbgfdiag",
    "tsbghoriz", "tsbgvert", "tsbrdrb", "tsbrdrdgl", "tsbrdrdgr", "tsbrdrh", "tsbrdrl", "tsbrdrr",
    "tsbrdrt", "tsbrdrv", "tscbandhorzeven", "tscbandhorzodd", "tscbandsh", "tscbandsv",
    "tscbandverteven", "tscbandvertodd", "tscellpaddb", "tscellpaddfb", "tscellpaddfl",
    "tscellpaddfr", "tscellpaddft", "tscellpaddl", "tscellpaddr", "tscellpaddt", "tscellpct",
    "tscellwidth", "tscellwidthfts", "tscfirstcol", "tscfirstrow", "tsclastcol", "tsclastrow",
    "tscnecell", "tscnwcell", "tscsecell", "tscswcell", "tsd", "tsnowrap", "tsrowd", "tsvertalb",
    "tsvertalc", "tsvertalt", "twoinone", "twoonone", "tx", "txbxtwalways", "txbxtwfirst",
    "txbxtwfirstlast", "txbxtwlast", "txbxtwno", "txfieldbin", "txfielddata", "txfielddatadef",
    "txfielddataval", "txfielddef", "txfieldend", "txfieldflags", "txfieldstart", "txfieldtype",
    "ul", "uld", "uldash", "uldashd", "uldashdd", "uldb", "ulhair", "ulhwave", "ulldash", "ulnone",
    "ulth", "ulthd", "ulthdash", "ulthdashd", "ulthdashdd", "ulthldash", "ululdbwave", "ulw",
    "ulwave", "up", "useltbaln", "usenormstyforlist", "usexform", "utinl", "v", "validatexml",
    "vern", "version", "vertal", "vertalb", "vertalc", "vertalj", "vertalt", "vertdoc", "vertsect",
    "viewbksp", "viewkind", "viewnobound", "viewscale", "viewzk", "wbitmap", "wbmbitspixel",
    "wbmplanes", "wbmwidthbytes", "webhidden", "widctlpar", "widowctl", "widowctrl", "wmetafile",
    "wpeqn", "wpjst", "wpsp", "wraparound", "wrapdefault", "wrapthrough", "wraptight", "wraptrsp",
    "wrppunct", "xef", "xmlattr", "xmlattrns", "xmlsdttcell", "xmlsdttpara", "xmlsdttregular",
    "xmlsdttrow", "xmlsdttunknown", "yr", "yts", "ytsauthor", "yxe", "zwbo", "zwj", "zwnbo", "zwnj",
    "zwspace",
};
// clang-format on

constexpr std::size_t wordCount =
    std::size(wordsWithMeaning) + std::size(otherDestinations) + std::size(otherWords);

constexpr std::array<RtfWord, wordCount> words = [] {
    std::array<RtfWord, wordCount> all{};
    auto next = all.begin();
    for (const RtfWord& word : wordsWithMeaning) {
        *next++ = word;
    }
    for (const RtfLetters word : otherDestinations) {
        *next++ = {.word = word, .destination = RtfDestination::Other};
    }
    for (const RtfLetters word : otherWords) {
        *next++ = {.word = word};
    }
    return all;
}();

/// What the search for a word begins with. Words of tables, borders and so on differ in one letter.
constexpr std::uint32_t hashOf(std::string_view word) {
    const std::size_t size = word.size();
    const auto letter = [&](std::size_t at) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(word[at]));
    };
    const std::uint32_t hash = static_cast<std::uint32_t>(size) * 0x9E3779B1U +
                               letter(0) * 0x85EBCA6BU + letter(size - 1) * 0xC2B2AE35U +
                               letter(size / 2) * 0x27D4EB2FU;
    return hash ^ hash >> 15;
}

/// Finds the first words of the list by their letters.
template <std::size_t Slots, std::size_t Words>
class WordIndex {
public:
    consteval WordIndex() {
        for (std::size_t i = 0; i < Words; ++i) {
            std::size_t slot = hashOf(words[i].word) % Slots;
            while (positions_[slot] != 0) {
                slot = (slot + 1) % Slots;
            }
            positions_[slot] = static_cast<std::uint16_t>(i + 1);
        }
    }

    const RtfWord* find(std::string_view word) const {
        if (word.empty()) {
            return nullptr;
        }
        for (std::size_t slot = hashOf(word) % Slots; positions_[slot] != 0;
             slot = (slot + 1) % Slots) {
            const RtfWord& candidate = words[positions_[slot] - 1U];
            if (std::string_view(candidate.word) == word) {
                return &candidate;
            }
        }
        return nullptr;
    }

private:
    // Counted from 1; 0 for a free slot.
    std::array<std::uint16_t, Slots> positions_{};
};

// Many more slots than words: nearly every search is one comparison or none.
constexpr WordIndex<8192, wordCount> allWords;
constexpr WordIndex<2048, std::size(wordsWithMeaning)> activeWords;

}  // namespace

const RtfWord* findRtfWord(std::string_view word) {
    return allWords.find(word);
}

const RtfWord* findActiveRtfWord(std::string_view word) {
    return activeWords.find(word);
}

std::span<const RtfWord> rtfWords() {
    return words;
}

}  // namespace quorvane
