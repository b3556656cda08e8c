/* (no members yet) */
