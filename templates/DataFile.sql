-- DATAfile.mdb: the layout of a data file. A new data file is a byte copy of it, so every byte here is in every file.
-- No index but the keys: they are written to while the vehicle drives.

CREATE TABLE Version (
  Major SMALLINT NOT NULL,
  Minor INTEGER  NOT NULL,
  Type  SMALLINT NOT NULL                -- tells a data file from a foreign database
);
-- The next one is 1.2: an update takes 1.1 for "never".
INSERT INTO Version(Major, Minor, Type) VALUES (1, 0, 1);

-- One spell of collection: made when the file is created or opened, written again at the end of each run.
CREATE TABLE Sessions (
  SessionID         INTEGER PRIMARY KEY AUTOINCREMENT,
  GUID              TEXT(40),
  Program           TEXT(8),
  Operator          TEXT(32),
  Electronics       TEXT(16),
  TestSetup         TEXT(80),
  Units             TEXT(16),
  Date              DATETIME,
  FacilityName      TEXT(80),
  FacilityCode      TEXT(50),
  FacilityDirection SMALLINT,
  FacilityType      TEXT(50),
  FacilityLanes     SMALLINT,
  SectionName       TEXT(80),
  SectionCode       TEXT(50),
  SectionDirection  SMALLINT,
  District          TEXT(80),
  Class             TEXT(50),
  Start             TEXT(50),
  "End"             TEXT(50),
  Lane              TEXT(50),
  LaneNumber        TEXT(16),
  StationMin        REAL,                -- file units
  StationMax        REAL,
  StationDirection  SMALLINT,            -- 1 increasing, -1 decreasing
  SegmentSize       REAL                 -- step length, file units
);

-- The observations that the session's test setup offered, in its order. Lengths hold whatever the vocabulary holds.
CREATE TABLE Observations (
  ObsParID    INTEGER PRIMARY KEY AUTOINCREMENT,
  SessionID   INTEGER,
  ObsCode     SMALLINT,
  ObsName     TEXT(80),
  ObsAbrv     TEXT(32),
  ObsIcon     LONGBINARY,
  ParCode     SMALLINT,
  ParName     TEXT(80),
  ParAbrv     TEXT(32),
  ParIcon     LONGBINARY,
  DataType    SMALLINT,
  TextUtil    TEXT(255),
  Min         SINGLE,
  Max         SINGLE,
  RegModeCode SMALLINT
);

CREATE TABLE Stations (
  StationID        INTEGER PRIMARY KEY AUTOINCREMENT,
  SessionID        INTEGER,
  Station          REAL,                 -- file units
  StationUnit      SMALLINT,
  StationDirection SMALLINT,
  StationType      SMALLINT,             -- 0 step boundary, 1 event
  Lane             TEXT(50),
  LaneNumber       TEXT(16),
  Time             DATETIME,
  GPSStatus        SMALLINT,
  GPSTime          REAL,
  Latitude         REAL,                 -- degrees
  Longitude        REAL,
  Height           SINGLE,
  GPSSVs           INTEGER
);

-- A value between two stations; a point has the same station twice.
CREATE TABLE Registrations (
  RegID   INTEGER PRIMARY KEY AUTOINCREMENT,
  FromID  INTEGER,
  ToID    INTEGER,
  ObsCode SMALLINT,
  ParCode SMALLINT,
  RegData TEXT(255)
);
