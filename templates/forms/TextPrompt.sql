-- Asks for a text in a moving vehicle: one wide box. Code sets the title.

CREATE TABLE TextPrompt (
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
CREATE UNIQUE INDEX TextPrompt_NameIndex ON TextPrompt(Name COLLATE NOCASE);

INSERT INTO TextPrompt(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                      TipEnglish, HelpEnglish) VALUES
  ('Me',       900,  3600, 13500,  1650, NULL,  -1, 'C',  'Enter',
     NULL, 'Type the text; Enter accepts it, Esc puts the old one back. An empty box changes nothing.'),
  ('txtBox',   150,   150, 13200,  1350, NULL,  -1, NULL, NULL, NULL, NULL);
