-- Software.mdb: the program's settings, kept as a history. Each saving adds a row; nothing is ever taken away.

CREATE TABLE Version (
  Major SMALLINT NOT NULL,
  Minor INTEGER  NOT NULL
);
-- The next one is 1.2: an update takes 1.1 for "never".
INSERT INTO Version(Major, Minor) VALUES (1, 0);

CREATE TABLE Options (
  ID              INTEGER PRIMARY KEY AUTOINCREMENT,
  Datum           DATETIME,              -- when the row was saved
  User            TEXT(32),              -- who saved it
  Units           TEXT(16),              -- 'Metric' or 'US', as shown
  StationUnit     SMALLINT DEFAULT 0,    -- 0 km, 1 m, 2 miles, 3 miles.feet, 4 feet, 5 yards
  FileUnits       TEXT(16),              -- 'Metric' or 'US', as filed
  FileStationUnit SMALLINT DEFAULT 0,    -- as StationUnit
  DrivingSide     SMALLINT DEFAULT 1,    -- 1 right, -1 left
  GeographicFormat SMALLINT DEFAULT 0,   -- 0 degrees, 1 degrees and minutes, 2 with seconds
  MDB             SMALLINT DEFAULT 1,    -- keep the data file after it was closed
  TKR             SMALLINT DEFAULT 1,    -- write the comma file when a data file is closed
  ErrorText       SMALLINT DEFAULT 1,
  ErrorVoice      SMALLINT DEFAULT 0,
  WarningText     SMALLINT DEFAULT 1,
  WarningVoice    SMALLINT DEFAULT 0,
  AssistanceText  SMALLINT DEFAULT 1,
  AssistanceVoice SMALLINT DEFAULT 1,
  DataColVoice    BOOLEAN  DEFAULT 0,    -- -1 spoken words, 0 tones
  TrayColor       INTEGER  DEFAULT 0
);

-- Downwards, so that the first row of the index is the one saved last.
CREATE UNIQUE INDEX Options_ID ON Options(ID DESC);

-- What a vehicle starts with: metric in everything, both files kept, keys answer with tones.
INSERT INTO Options(Datum, User, Units, StationUnit, FileUnits, FileStationUnit, DrivingSide, GeographicFormat, MDB, TKR,
                    ErrorText, ErrorVoice, WarningText, WarningVoice, AssistanceText, AssistanceVoice, DataColVoice,
                    TrayColor)
VALUES ('2025-01-01 00:00:00', 'Trekor', 'Metric', 0, 'Metric', 0, 1, 0, 1, 1,
        1, 0, 1, 0, 1, 1, 0,
        0);
