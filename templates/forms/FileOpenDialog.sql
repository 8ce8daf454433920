-- The data file to go on collecting in: drive, folder and files on the left, the newest session of one on the right.

CREATE TABLE FileOpenDialog (
  Name        TEXT(60) NOT NULL COLLATE NOCASE,
  "Left"      INTEGER,
  Top         INTEGER,
  Width       INTEGER,
  Height      INTEGER,
  Value       TEXT,
  Visible     BOOLEAN DEFAULT -1,
  Tag         TEXT(20),
  CapEnglish  TEXT,
  TipEnglish  TEXT(255),
  HelpEnglish TEXT
);
CREATE UNIQUE INDEX FileOpenDialog_NameIndex ON FileOpenDialog(Name COLLATE NOCASE);

INSERT INTO FileOpenDialog(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                           TipEnglish, HelpEnglish) VALUES
  -- the form
  ('Me',                  1200,   900, 12000,  7860, NULL,  -1, 'C',  'Open data file',
     NULL, 'Choose a file and press OK: a new session is added to it. Del deletes the file.'),
  -- place
  ('DriveSelect',          180,   180,  5160,   450, NULL,  -1, NULL, NULL,
     'Drive of the data files', NULL),
  ('DirectorySelect',      180,   750,  5160,  2700, NULL,  -1, NULL, NULL,
     'Folder of the data files', 'A double click, Enter or Right goes into a folder; Left goes out of it.'),
  ('LabelFiles',           180,  3570,  5160,   270, NULL,  -1, NULL, 'Data files', NULL, NULL),
  ('FileSelect',           180,  3870,  5160,  2400, NULL,  -1, NULL, NULL,
     'Click a file to see its newest session; a double click opens it', 'Del deletes the file after a question.'),
  ('LabelPath',            180,  6435,  1200,   300, NULL,  -1, NULL, 'Folder', NULL, NULL),
  ('FullPathLabel',       1440,  6435, 10380,   300, NULL,  -1, NULL, NULL, NULL, NULL),
  -- its newest session
  ('LabelDate',           5640,   270,  1740,   300, NULL,  -1, NULL, 'Session of', NULL, NULL),
  ('DateLabel',           7440,   270,  4380,   300, NULL,  -1, NULL, NULL,
     'When the newest session was made', NULL),
  ('Labels(0)',           5640,   750,  1740,   300, NULL,  -1, NULL, 'Facility', NULL, NULL),
  ('Texts(0)',            7440,   660,  4380,   450, NULL,  -1, NULL, NULL,
     'Name of the road', NULL),
  ('Labels(1)',           5640,  1350,  1740,   300, NULL,  -1, NULL, 'Section', NULL, NULL),
  ('Texts(1)',            7440,  1260,  4380,   450, NULL,  -1, NULL, NULL,
     'Name of the stretch of road', NULL),
  ('Labels(9)',           5640,  1950,  1740,   300, NULL,  -1, NULL, 'Start', NULL, NULL),
  ('Texts(9)',            7440,  1860,  4380,   450, NULL,  -1, NULL, NULL,
     'Where the section starts', NULL),
  ('Labels(10)',          5640,  2550,  1740,   300, NULL,  -1, NULL, 'End', NULL, NULL),
  ('Texts(10)',           7440,  2460,  4380,   450, NULL,  -1, NULL, NULL,
     'Where the section ends', NULL),
  ('LabelSetup',          5640,  3150,  1740,   300, NULL,  -1, NULL, 'Test setup', NULL, NULL),
  ('TestSetupLabel',      7440,  3150,  4380,   300, NULL,  -1, NULL, NULL, NULL, NULL),
  ('LabelUnits',          5640,  3630,  1740,   300, NULL,  -1, NULL, 'Filed units', NULL, NULL),
  ('FiledUnitsLabel',     7440,  3630,  4380,   300, NULL,  -1, NULL, NULL,
     'Units of the file; they blink when a comma file would be written in others', NULL),
  ('FiledStationsLabel',  7440,  3990,  4380,   300, NULL,  -1, NULL, NULL,
     'Unit of its stations; it blinks when a comma file would be written in another', NULL),
  ('BlinkTimer',          NULL,  NULL,  NULL,  NULL, NULL,  -1, NULL, NULL, NULL, NULL),
  -- commands
  ('CmdOK',               6480,  7035,  2580,   600, NULL,  -1, NULL, '&OK',
     'Opens the file for a new session', NULL),
  ('CmdCancel',           9240,  7035,  2580,   600, NULL,  -1, NULL, '&Cancel',
     'Leaves without a file', NULL);
