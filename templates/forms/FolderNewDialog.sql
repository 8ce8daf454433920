-- Asks for the name of a new folder below the one that is shown.

CREATE TABLE FolderNewDialog (
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
CREATE UNIQUE INDEX FolderNewDialog_NameIndex ON FolderNewDialog(Name COLLATE NOCASE);

INSERT INTO FolderNewDialog(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                            TipEnglish, HelpEnglish) VALUES
  -- the form
  ('Me',                  2700,  3600,  7200,  2100, NULL,  -1, 'C',  'New folder',
     NULL, 'Type a name; Enter makes the folder, Esc leaves without one. An empty name makes nothing.'),
  ('LabelName',            240,   330,  1500,   300, NULL,  -1, NULL, 'Name', NULL, NULL),
  ('FolderName',          1800,   240,  5160,   450, NULL,  -1, NULL, NULL,
     'Name of the new folder', NULL),
  ('CmdOK',               1620,  1260,  2580,   600, NULL,  -1, NULL, '&OK',
     'Makes the folder', NULL),
  ('CmdCancel',           4380,  1260,  2580,   600, NULL,  -1, NULL, '&Cancel',
     'Leaves without a folder', NULL);
