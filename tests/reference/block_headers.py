"""Keyword and comment lines that open the blocks of the model text file."""

NODE = """\
*NODE    ; Nodes
; iNO, X, Y, Z
"""

ELEMENT = """\
*ELEMENT    ; Elements
; iEL, TYPE, iMAT, iPRO, iN1, iN2, ANGLE, iSUB, EXVAL              ; Frame  Element
; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iSUB, iWID            ; Planar Element
; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iN5, iN6, iN7, iN8    ; Solid  Element
; iEL, TYPE, iMAT, iPRO, iN1, iN2, REF, RPX, RPY, RPZ, iSUB, EXVAL ; Frame(Ref. Point)
"""

MATERIAL = """\
*MATERIAL    ; Material
; iMAT, TYPE, MNAME, SPHEAT, HEATCO, [DATA1]               ; STEEL, CONC, USER
; iMAT, TYPE, MNAME, SPHEAT, HEATCO, [DATA2], [DATA2]      ; SRC
; [DATA1] : 1, DB, NAME
; [DATA1] : 2, ELAST, POISN, THERMAL, DEN
; [DATA1] : 3, Ex, Ey, Ez, Tx, Ty, Tz, Sxy, Sxz, Syz, Pxy, Pxz, Pyz, DEN  ; Orthotropic
; [DATA2] : 1, DB, NAME or 2, ELAST, POISN, THERMAL, DEN
"""

SECTION = """\
*SECTION    ; Section
; iSEC, TYPE, SNAME, OFFSET, SHAPE, [DATA] {, CCSHAPE}                     ; DB/USER
; iSEC, TYPE, SNAME, OFFSET, SHAPE, BLT, D1, D2, D3, D4, D5, D6            ; 1st line - VALUE
;       AREA, ASy, ASz, Ixx, Iyy, Izz                                      ; 2nd line
;       CyP, CyM, CzP, CzM, QyB, QzB, PERI_OUT, PERI_IN, Cy, Cz            ; 3rd line
; iSEC, TYPE, SNAME, OFFSET, SHAPE, iREPLACE, ELAST, DEN, POIS, POIC       ; 1st line - SRC
;       D1, D2, [DATA]                                                     ; 2nd line
; iSEC, TYPE, SNAME, OFFSET, SHAPE, 1, DB, NAME1, NAME2, D1, D2            ; COMBINED
; iSEC, TYPE, SNAME, OFFSET, SHAPE, 2, D11, D12, D13, D14, D15, D21, D22, D23, D24
; iSEC, TYPE, SNAME, OFFSET, SHAPE, iyVAR, izVAR, STYPE                    ; 1st line - TAPERED
;       DB, NAME1, NAME2                                                   ; 2nd line(STYPE=DB)
;       [DIM1], [DIM2]                                                     ; 2nd line(STYPE=USER)
;       D11, D12, D13, D14, D15, D16                                       ; 2nd line(STYPE=VALUE)
;       AREA1, ASy1, ASz1, Ixx1, Iyy1, Izz1                                ; 3rd line(STYPE=VALUE)
;       CyP1, CyM1, CzP1, CzM1, QyB1, QzB1, PERI_OUT1, PERI_IN1, Cy1, Cz1  ; 4th line(STYPE=VALUE)
;       D21, D22, D23, D24, D25, D26                                       ; 5th line(STYPE=VALUE)
;       AREA2, ASy2, ASz2, Ixx2, Iyy2, Izz2                                ; 6th line(STYPE=VALUE)
;       CyP2, CyM2, CzP2, CzM2, QyB2, QzB2, PERI_OUT2, PERI_IN2, Cy2, Cz2  ; 7th line(STYPE=VALUE)
; [DATA] : 1, DB, NAME or 2, D1, D2, D3, D4, D5, D6
; [DIM1], [DIM2] : D1, D2, D3, D4, D5, D6
"""

THICKNESS = """\
*THICKNESS    ; Thickness
; iTHK, TYPE, bSAME, THIK-IN, THIK-OUT                 ; TYPE=VALUE
; iTHK, TYPE, SUBTYPE, RPOS, WEIGHT                    ; TYPE=STIFFENED, SUBTYPE=VALUE
;       SHAPE, THIK-IN, THIK-OUT, HU, HL               ;      for yz section
;       SHAPE, THIK-IN, THIK-OUT, HU, HL               ;      for xz section
; iTHK, TYPE, SUBTYPE, RPOS, PLATETHIK                 ; TYPE=STIFFENED, SUBTYPE=USER
;       bRIB {, SHAPE, DIST, SIZE1, SIZE2, ..., SIZE6} ;      for yz section
;       bRIB {, SHAPE, DIST, SIZE2, SIZE2, ..., SIZE6} ;      for xz section
; iTHK, TYPE, SUBTYPE, RPOS, PLATETHIK, DBNAME         ; TYPE=STIFFENED, SUBTYPE=DB
;       bRIB {, SHAPE, DIST, SNAME}                    ;      for yz section
;       bRIB {, SHAPE, DIST, SNAME}                    ;      for xz section
"""

CONSTRAINT = """\
*CONSTRAINT    ; Supports
; NODE_LIST, CONST(Dx,Dy,Dz,Rx,Ry,Rz), GROUP
"""

FRAME_RLS = """\
*FRAME-RLS    ; Beam End Release
; ELEM_LIST, FLAG-i, Fxi, Fyi, Fzi, Mxi, Myi, Mzi        ; 1st line
;            FLAG-j, Fxj, Fyj, Fzj, Mxj, Myj, Mzj, GROUP ; 2nd line
"""

OFFSET = """\
*OFFSET    ; Beam End Offsets
; ELEM_LIST, TYPE, RGDXi, RGDYi, RGDZi, RGDXj, RGDYj, RGDZj, GROUP  ; TYPE=GLOBAL
; ELEM_LIST, TYPE, RGDi, RGDj, GROUP                                ; TYPE=ELEMENT
"""

CONLOAD = """\
*CONLOAD    ; Nodal Loads
; NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP
"""

BEAMLOAD = """\
*BEAMLOAD    ; Element Beam Loads
; ELEM_LIST, CMD, TYPE, DIR, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP
; ELEM_LIST, CMD, TYPE, DIR, VX, VY, VZ, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP
"""

PRESSURE = """\
*PRESSURE    ; Pressure Loads
; ELEM_LIST, CMD, ETYP, LTYP, DIR, VX, VY, VZ, bPROJ, PU, P1, P2, P3, P4, GROUP  ; ETYP=PLATE, LTYP=FACE
; ELEM_LIST, CMD, ETYP, LTYP, iEDGE, DIR, VX, VY, VZ, PU, P1, P2, GROUP          ; ETYP=PLATE, LTYP=EDGE
; ELEM_LIST, CMD, ETYP, iEDGE, DIR, VX, VY, VZ, PU, P1, P2, GROUP                ; ETYP=PLANE
; ELEM_LIST, CMD, ETYP, iFACE, DIR, VX, VY, VZ, bPROJ, PU, P1, P2, P3, P4, GROUP ; ETYP=SOLID
; [PLATE] : plate, plane stress, wall, [PLANE] : axisymmetric, plane strain
"""
