-- Name and place of a new data file: drive, folder and existing files on the left, the new file on the right.

CREATE TABLE FileNewDialog2 (
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
CREATE UNIQUE INDEX FileNewDialog2_NameIndex ON FileNewDialog2(Name COLLATE NOCASE);

INSERT INTO FileNewDialog2(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                          TipEnglish, HelpEnglish) VALUES
  -- the form
  ('Me',                  1200,   900, 12000,  7860, NULL,  -1, 'C',  'New data file',
     NULL, 'Choose a folder, type a name and press OK. A click on an existing file proposes the next name of its series.'),
  -- place
  ('DriveSelect',          180,   180,  3300,   450, NULL,  -1, NULL, NULL,
     'Drive of the data file', NULL),
  ('CmdNewDir',           3600,   180,  1740,   450, NULL,  -1, NULL, 'New &folder',
     'Makes a folder below the one that is shown', NULL),
  ('DirectorySelect',      180,   750,  5160,  2700, NULL,  -1, NULL, NULL,
     'Folder of the data file', 'A double click or Right goes into a folder; Left goes out of it.'),
  ('LabelFiles',           180,  3570,  5160,   270, NULL,  -1, NULL, 'Existing data files', NULL, NULL),
  ('FileSelect',           180,  3870,  5160,  2400, NULL,  -1, NULL, NULL,
     'Click a file to continue its series', 'The fields on the right take over what the file''s last session holds.'),
  ('LabelPath',            180,  6435,  1200,   300, NULL,  -1, NULL, 'Folder', NULL, NULL),
  ('FullPathLabel',       1440,  6435, 10380,   300, NULL,  -1, NULL, NULL, NULL, NULL),
  -- the new file
  ('Labels(2)',           5640,   270,  1740,   300, NULL,  -1, NULL, 'File name', NULL, NULL),
  ('Texts(2)',            7440,   180,  4380,   450, NULL,  -1, NULL, NULL,
     'Name without extension', 'An empty name cancels.'),
  ('Labels(0)',           5640,   870,  1740,   300, NULL,  -1, NULL, 'Facility', NULL, NULL),
  ('Texts(0)',            7440,   780,  4380,   450, NULL,  -1, NULL, NULL,
     'Name of the road', NULL),
  ('Labels(1)',           5640,  1470,  1740,   300, NULL,  -1, NULL, 'Section', NULL, NULL),
  ('Texts(1)',            7440,  1380,  4380,   450, NULL,  -1, NULL, NULL,
     'Name of the stretch of road', NULL),
  ('Labels(9)',           5640,  2070,  1740,   300, NULL,  -1, NULL, 'Start', NULL, NULL),
  ('Texts(9)',            7440,  1980,  4380,   450, NULL,  -1, NULL, NULL,
     'Where the section starts', NULL),
  ('Labels(10)',          5640,  2670,  1740,   300, NULL,  -1, NULL, 'End', NULL, NULL),
  ('Texts(10)',           7440,  2580,  4380,   450, NULL,  -1, NULL, NULL,
     'Where the section ends', NULL),
  -- what it will hold, and where it is copied to
  ('LabelSetup',          5640,  3270,  1740,   300, NULL,  -1, NULL, 'Test setup', NULL, NULL),
  ('TestSetupLabel',      7440,  3270,  4380,   300, NULL,  -1, NULL, NULL, NULL, NULL),
  ('LabelBackup',         5640,  3870,  1740,   300, NULL,  -1, NULL, 'Backup drive', NULL, NULL),
  ('cboBackup',           7440,  3780,  4380,   450, NULL,  -1, NULL, NULL,
     'Drive that gets a copy when the file is closed', 'The copy goes to the same folder on the other drive.'),
  ('LabelUnits',          5640,  4500,  1740,   300, NULL,  -1, NULL, 'Filed units', NULL, NULL),
  ('FiledUnitsLabel',     7440,  4500,  4380,   300, NULL,  -1, NULL, NULL,
     'Units in the file; they blink when the screen shows others', NULL),
  ('FiledStationsLabel',  7440,  4860,  4380,   300, NULL,  -1, NULL, NULL,
     'Unit of stations in the file; it blinks when the screen shows another', NULL),
  -- commands
  ('CmdOK',               6480,  7035,  2580,   600, NULL,  -1, NULL, '&OK',
     'Creates the file', NULL),
  ('CmdCancel',           9240,  7035,  2580,   600, NULL,  -1, NULL, '&Cancel',
     'Leaves without a file', NULL),
  ('BlinkTimer',          NULL,  NULL,  NULL,  NULL, NULL,  -1, NULL, NULL, NULL, NULL);
