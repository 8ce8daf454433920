-- Observations.mdb: the vocabulary of what an operator may record, and the test setups that are chosen from it.
-- The template holds the lookups alone: items and setups are the vehicle's own and must never come back with an update.

CREATE TABLE Version (
  Major SMALLINT NOT NULL,
  Minor INTEGER  NOT NULL
);
-- The next one is 1.2: an update takes 1.1 for "never".
INSERT INTO Version(Major, Minor) VALUES (1, 0);

-- ---------------------------------------------------------------------------------------------------- items and folders

-- A folder of items: one complete vocabulary.
CREATE TABLE Languages (
  LanguageID INTEGER PRIMARY KEY AUTOINCREMENT,
  Language   TEXT(80) COLLATE NOCASE
);

-- An item. The defaults are those of an item that was just added: they must have rows in the lookups, or the editor would
-- show no details for it.
CREATE TABLE Observations (
  ObsParID    INTEGER PRIMARY KEY AUTOINCREMENT,
  LanguageID  SMALLINT NOT NULL,
  ObsCode     SMALLINT NOT NULL,         -- 1 and more; 0 is never loaded into a setup
  ParCode     SMALLINT DEFAULT 0,
  ParNameDisp TEXT(80) DEFAULT ' ',
  ParNameFile TEXT(80) DEFAULT ' ',
  ParAbrvDisp TEXT(32) DEFAULT ' ',
  ParAbrvFile TEXT(32) DEFAULT ' ',
  ParIcon     TEXT(80),
  DataType    SMALLINT DEFAULT 0,
  Min         SINGLE   DEFAULT 0,
  Max         SINGLE   DEFAULT 1,
  TextDisp    TEXT(255) DEFAULT ' ',
  TextFile    TEXT(255) DEFAULT ' ',
  RegModeCode SMALLINT DEFAULT 1,
  KeyingCode  SMALLINT DEFAULT 1
);

-- The names of one code in one folder. No primary key: two fields make the key, and an update that knows rows by the first
-- field alone would write all names of a folder over each other.
CREATE TABLE ObsLinguistic (
  LanguageID  SMALLINT NOT NULL,
  ObsCode     SMALLINT NOT NULL,
  ObsNameDisp TEXT(80) DEFAULT ' ',
  ObsNameFile TEXT(80) DEFAULT ' ',
  ObsAbrvDisp TEXT(32) DEFAULT ' ',
  ObsAbrvFile TEXT(32) DEFAULT ' ',
  ObsIcon     TEXT(80)                   -- name of a picture file of the folder Graphics
);
CREATE UNIQUE INDEX ObsLinguistic_LanguageCode ON ObsLinguistic(LanguageID, ObsCode);

-- --------------------------------------------------------------------------------------------------------------- setups

CREATE TABLE SetupNames (
  SetupID   INTEGER PRIMARY KEY AUTOINCREMENT,
  SetupName TEXT(80) COLLATE NOCASE
);

-- One item in one setup. No primary key, for the same reason as above.
CREATE TABLE Setups (
  SetupID      SMALLINT NOT NULL,
  ObsParID     INTEGER  NOT NULL,
  GridPosition SMALLINT DEFAULT 10000,   -- above any real place: a new item stays last until places are numbered anew
  KeyCode      SMALLINT DEFAULT -1       -- key code, -1 none
);
CREATE UNIQUE INDEX Setups_SetupItem ON Setups(SetupID, ObsParID);

-- -------------------------------------------------------------------------------------------------------------- lookups

CREATE TABLE DataTypes (
  DataTypeID SMALLINT NOT NULL PRIMARY KEY,
  DataType   TEXT(20)
);
INSERT INTO DataTypes(DataTypeID, DataType) VALUES
  (0, 'Boolean'),
  (1, 'Integer'),
  (2, 'Float'),
  (4, 'Text');                           -- 3 is a kind that the editor does not offer

CREATE TABLE KeyingCodes (
  KeyingCode SMALLINT NOT NULL PRIMARY KEY,
  keying     TEXT(40)
);
INSERT INTO KeyingCodes(KeyingCode, keying) VALUES
  (1, 'One key'),
  (2, 'Key, then value key');

CREATE TABLE RegModes (
  RegModeCode SMALLINT NOT NULL PRIMARY KEY,
  RegMode     TEXT(40)
);
INSERT INTO RegModes(RegModeCode, RegMode) VALUES
  (0, 'Point'),
  (1, 'Present step'),
  (2, 'Continues until changed'),
  (3, 'Point, continues until changed');
