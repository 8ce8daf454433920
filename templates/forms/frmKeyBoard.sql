-- The floating picture of the keyboard, twelve key units wide.

CREATE TABLE frmKeyBoard (
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
CREATE UNIQUE INDEX frmKeyBoard_NameIndex ON frmKeyBoard(Name COLLATE NOCASE);

INSERT INTO frmKeyBoard(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                       TipEnglish, HelpEnglish) VALUES
  ('Me',            900,   900, 13500,  3900, NULL,  -1, 'C',  'Keyboard',
     NULL, 'The keys that carry an observation. A double click hides the window.'),
  ('fxgKeyBoard',    60,    60, 13380,  3780, NULL,  -1, NULL, NULL, NULL, NULL);
